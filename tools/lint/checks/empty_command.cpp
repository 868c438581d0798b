#include "lint/checks/checks.hpp"
#include "lint/header_line.hpp"

namespace kelp::input::quill::lint {

Findings check_empty_command(const Source& source) {
  Findings findings;
  for (std::size_t i = 0; i < source.command_lines().size(); ++i) {
    const HeaderCommand& command = source.input().commands[i];
    if (command.name.empty() && command.kind == HeaderCommandKind::Flag)
      findings.push_back({range_of_command(source, i)});
  }
  return findings;
}

}  // namespace kelp::input::quill::lint
