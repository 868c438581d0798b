#include "quill-inp/process/terminal.hpp"

#include <unistd.h>

#include <cstdlib>

namespace kelp::input::quill::tool {

namespace {

struct NamedColorMode {
  const char* name;
  ColorMode mode;
};

constexpr NamedColorMode color_modes[] = {
    {"auto", ColorMode::Auto}, {"always", ColorMode::Always}, {"never", ColorMode::Never}};

std::string_view environment_variable(const char* name) {
  // No thread of the program changes the environment.
  const char* value = std::getenv(name);  // NOLINT(concurrency-mt-unsafe)
  return value == nullptr ? std::string_view() : std::string_view(value);
}

}  // namespace

std::optional<ColorMode> find_color_mode(std::string_view name) {
  for (const NamedColorMode& row : color_modes) {
    if (row.name == name) return row.mode;
  }
  return std::nullopt;
}

std::vector<std::string> color_mode_names() {
  std::vector<std::string> names;
  for (const NamedColorMode& row : color_modes) names.emplace_back(row.name);
  return names;
}

bool is_terminal(std::optional<int> file) { return file && isatty(*file) == 1; }

bool can_erase_lines(std::optional<int> file) {
  return is_terminal(file) && environment_variable("TERM") != "dumb";
}

bool wants_color(ColorMode mode, std::optional<int> file) {
  if (mode != ColorMode::Auto) return mode == ColorMode::Always;
  return can_erase_lines(file) && environment_variable("NO_COLOR").empty();
}

}  // namespace kelp::input::quill::tool
