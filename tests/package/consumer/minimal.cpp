// Uses only the library itself, so that the two small libraries are found only if the library names
// them.

#include <kelp/input/quill/quill.hpp>

int main() {
  const auto result = kelp::input::quill::parse_string("#sp\n\n0 1\nH 0 0 0\n");
  return result.warnings.empty() && result.input.has_task_command() ? 0 : 1;
}
