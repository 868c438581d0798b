#include "quill-inp/sweep/name_pattern.hpp"

#include <filesystem>

#include "quill-inp/process/trouble.hpp"

namespace kelp::input::quill::tool {

namespace {

std::string value_of_field(const std::string& field, const NameFields& fields) {
  std::string known;
  for (const auto& [name, value] : fields) {
    if (name != field) {
      known += (known.empty() ? "{" : ", {") + name + "}";
    } else if (value.find('/') != std::string::npos) {
      throw UsageError("the value '" + value + "' of {" + field +
                       "} cannot be part of a name; use {number} instead");
    } else {
      return value;
    }
  }
  throw UsageError("unknown field '{" + field + "}' in the name; there are " + known);
}

}  // namespace

std::string make_name(std::string_view pattern, const NameFields& fields) {
  std::string name;
  while (!pattern.empty()) {
    const char c = pattern.front();
    if ((c == '{' || c == '}') && pattern.substr(1, 1) == pattern.substr(0, 1)) {
      name += c;
      pattern.remove_prefix(2);
    } else if (c == '{' && pattern.find('}') != std::string_view::npos) {
      const std::size_t end = pattern.find('}');
      name += value_of_field(std::string(pattern.substr(1, end - 1)), fields);
      pattern.remove_prefix(end + 1);
    } else if (c == '{' || c == '}') {
      throw UsageError("an unmatched brace in the name; write '{{' or '}}' for a brace");
    } else {
      name += c;
      pattern.remove_prefix(1);
    }
  }
  return name;
}

std::string stem_of(const std::string& path) { return std::filesystem::path(path).stem().string(); }

std::string padded_number(std::size_t number, std::size_t largest) {
  std::string text = std::to_string(number);
  const std::size_t width = std::to_string(largest).size();
  return std::string(width - text.size(), '0') + text;
}

}  // namespace kelp::input::quill::tool
