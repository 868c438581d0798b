#include "quill-inp/command_line/common_options.hpp"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

#include <CLI/App.hpp>

#include "quill-inp/command_line/arguments.hpp"
#include "quill-inp/process/trouble.hpp"
#include "quill-inp/text/suggestion.hpp"

namespace kelp::input::quill::tool {

namespace {

constexpr Option quiet{"-q,--quiet", "", "Print errors only, no warnings and notes"};
constexpr Option color{"--color", "WHEN", "Use colour: auto, always or never"};
constexpr Option max_size{"--max-size", "SIZE", "Refuse larger files (default 256MiB)"};
constexpr Option stdin_filename{"--stdin-filename", "NAME", "Name for standard input in messages"};

ColorMode parse_color_mode(const std::string& text) {
  if (const auto mode = find_color_mode(text)) return *mode;
  throw UsageError("--color takes auto, always or never, not '" + text + "'" +
                   suggestion(text, color_mode_names()));
}

struct SizeUnit {
  std::string_view name;
  unsigned shift;
};

constexpr SizeUnit size_units[] = {{"", 0}, {"KiB", 10}, {"MiB", 20}, {"GiB", 30}};

/// Larger than any memory, and small enough that other sizes can be added without overflow.
constexpr std::uint64_t largest_size = std::numeric_limits<std::uint64_t>::max() / 4;

/// size = digits [ "KiB" / "MiB" / "GiB" ]
std::uint64_t parse_size(const std::string& text) {
  std::uint64_t number = 0;
  const char* const end = text.data() + text.size();
  const auto [after, error] = std::from_chars(text.data(), end, number);
  const std::string_view unit_name(after, static_cast<std::size_t>(end - after));
  for (const SizeUnit& unit : size_units) {
    if (error == std::errc() && unit.name == unit_name && number <= largest_size >> unit.shift)
      return number << unit.shift;
  }
  throw UsageError("--max-size takes a number of bytes, KiB, MiB or GiB, such as '256MiB', not '" +
                   text + "'");
}

/// "-q", alone or with other short options that have no value: "-iq".
bool asks_for_quiet(std::string_view word) {
  if (word == "--quiet") return true;
  return word.substr(0, 1) == "-" && word.find('q') != std::string_view::npos &&
         word.find_first_not_of("hiq", 1) == std::string_view::npos;
}

}  // namespace

void add_common_options(CLI::App& verb) {
  begin_group(verb, "General");
  verb.set_help_flag("-h,--help", "Print this help");
  add_flag(verb, quiet);
  for (const Option& option : {color, max_size, stdin_filename}) add_value(verb, option);
}

CommonOptions read_common_options(const CLI::App& verb) {
  CommonOptions options;
  options.is_quiet = is_given(verb, quiet);
  if (const auto mode = value_of(verb, color)) options.color = parse_color_mode(*mode);
  if (const auto size = value_of(verb, max_size)) options.max_size = parse_size(*size);
  if (const auto name = value_of(verb, stdin_filename)) options.stdin_filename = *name;
  return options;
}

CommonOptions find_message_options(const std::vector<std::string>& arguments) {
  const std::string name = name_of(color);
  CommonOptions options;
  const auto end = std::find(arguments.begin(), arguments.end(), "--");
  for (auto word = arguments.begin(); word != end; ++word) {
    if (asks_for_quiet(*word)) options.is_quiet = true;
    std::string_view value;
    if (*word == name && word + 1 != end) value = *(word + 1);
    if (word->compare(0, name.size() + 1, name + "=") == 0)
      value = std::string_view(*word).substr(name.size() + 1);
    options.color = find_color_mode(value).value_or(options.color);
  }
  return options;
}

}  // namespace kelp::input::quill::tool
