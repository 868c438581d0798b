#include "quill-inp/command_line/message_options.hpp"

#include <algorithm>
#include <string_view>

namespace kelp::input::quill::tool {

namespace {

/// "-q", alone or with other short options that have no value: "-iq".
bool asks_for_quiet(std::string_view word) {
  if (word == "--quiet") return true;
  return word.substr(0, 1) == "-" && word.find('q') != std::string_view::npos &&
         word.find_first_not_of("hiq", 1) == std::string_view::npos;
}

}  // namespace

MessageOptions find_message_options(const std::vector<std::string>& arguments) {
  constexpr std::string_view color = "--color";
  MessageOptions options;
  const auto end = std::find(arguments.begin(), arguments.end(), "--");
  for (auto word = arguments.begin(); word != end; ++word) {
    if (asks_for_quiet(*word)) options.is_quiet = true;
    std::string_view value;
    if (*word == color && word + 1 != end) value = *(word + 1);
    if (word->compare(0, color.size() + 1, "--color=") == 0)
      value = std::string_view(*word).substr(color.size() + 1);
    options.color = find_color_mode(value).value_or(options.color);
  }
  return options;
}

}  // namespace kelp::input::quill::tool
