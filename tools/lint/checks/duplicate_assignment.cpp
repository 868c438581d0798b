#include <map>
#include <string>

#include "lint/checks/checks.hpp"
#include "lint/header_line.hpp"

namespace kelp::input::quill::lint {

void check_duplicate_assignment(const Source& source, Collector& findings) {
  std::map<std::string, std::size_t> firsts;
  for (std::size_t i = 0; i < source.command_lines().size(); ++i) {
    const HeaderCommand& command = source.input().commands[i];
    if (command.kind != HeaderCommandKind::Assignment || command.name.empty()) continue;
    const auto [first, is_new] = firsts.emplace(normalize_command_name(command.name), i);
    if (is_new) continue;
    findings.add({range_of_command(source, i),
                  {text_fact("name", command.name)},
                  {{range_of_command(source, first->second), "the one that counts"}}});
  }
}

}  // namespace kelp::input::quill::lint
