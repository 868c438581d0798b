#include "lint/checks/checks.hpp"
#include "lint/header_line.hpp"

namespace kelp::input::quill::lint {

void check_empty_command(const Source& source, Collector& findings) {
  for (std::size_t i = 0; i < source.command_lines().size(); ++i) {
    const HeaderCommand& command = source.input().commands[i];
    if (command.name.empty() && command.kind == HeaderCommandKind::Flag)
      findings.add({range_of_command(source, i)});
  }
}

}  // namespace kelp::input::quill::lint
