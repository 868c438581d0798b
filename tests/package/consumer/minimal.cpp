// Uses nothing but the library itself, so that nothing but its own needs leads to the two small
// libraries that it stands on.

#include <kelp/input/quill/quill.hpp>

int main() {
  const auto result = kelp::input::quill::parse_string("#sp\n\n0 1\nH 0 0 0\n");
  return result.warnings.empty() && result.input.has_task_command() ? 0 : 1;
}
