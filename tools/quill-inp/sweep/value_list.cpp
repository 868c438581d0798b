#include "quill-inp/sweep/value_list.hpp"

#include <algorithm>

#include "quill-inp/process/trouble.hpp"

namespace kelp::input::quill::tool {

namespace {

constexpr std::size_t most_combinations = 1000000;

std::vector<std::string> split_list(std::string_view list) {
  std::vector<std::string> values(1);
  for (std::size_t i = 0; i < list.size(); ++i) {
    const bool is_escaped =
        list[i] == '\\' && i + 1 < list.size() && (list[i + 1] == ',' || list[i + 1] == '\\');
    if (is_escaped) {
      values.back() += list[++i];
    } else if (list[i] == ',') {
      values.emplace_back();
    } else {
      values.back() += list[i];
    }
  }
  return values;
}

}  // namespace

ValueList parse_value_list(const std::string& text) {
  if (!has_value(text)) throw UsageError("expected KEY=[VALUE,...], not '" + text + "'");
  Setting setting = parse_setting(text);
  const std::string_view value = *setting.value;
  ValueList list{setting.key_text, setting.key, {}};
  const bool is_list = value.size() >= 2 && value.front() == '[' && value.back() == ']';
  if (!is_list) {
    list.values = {std::string(value)};
  } else if (value.size() == 2) {
    throw UsageError("'" + text + "' has no values");
  } else {
    list.values = split_list(value.substr(1, value.size() - 2));
  }
  return list;
}

std::size_t count_combinations(const std::vector<std::size_t>& lengths, Combination combination) {
  std::size_t count = 1;
  for (const std::size_t length : lengths) {
    if (combination == Combination::Product) {
      if (count > most_combinations / length)
        throw UsageError("more than " + std::to_string(most_combinations) + " combinations");
      count *= length;
    } else if (length > 1 && count > 1 && length != count) {
      throw UsageError("--zip needs lists of the same length, not of " + std::to_string(count) +
                       " and " + std::to_string(length) + " values");
    } else {
      count = std::max(count, length);
    }
  }
  return count;
}

std::vector<std::size_t> indices_of(std::size_t number, const std::vector<std::size_t>& lengths,
                                    Combination combination) {
  std::vector<std::size_t> indices(lengths.size());
  for (std::size_t i = lengths.size(); i-- > 0;) {
    if (combination == Combination::Zip) {
      indices[i] = lengths[i] == 1 ? 0 : number;
    } else {
      indices[i] = number % lengths[i];
      number /= lengths[i];
    }
  }
  return indices;
}

}  // namespace kelp::input::quill::tool
