#include "quill-inp/editing/header_text_loss.hpp"

#include <algorithm>
#include <string>

#include "kelp/input/quill/writer.hpp"

namespace kelp::input::quill::tool {

namespace {

/// Returns the characters that carry meaning, sorted.
std::string sorted_essence(std::string_view line) {
  constexpr std::string_view layout = " \t\n\v\f\r,\"'";
  std::string essence;
  for (const char c : line) {
    if (layout.find(c) == std::string_view::npos) essence += c;
  }
  std::sort(essence.begin(), essence.end());
  return essence;
}

}  // namespace

bool says_more_than(std::string_view line, const HeaderCommand& command) {
  const std::string in_line = sorted_essence(line);
  const std::string in_command = sorted_essence(to_string(command));
  return !std::includes(in_command.begin(), in_command.end(), in_line.begin(), in_line.end());
}

}  // namespace kelp::input::quill::tool
