#include <map>
#include <string>

#include "kelp/core/text.hpp"
#include "lint/checks/checks.hpp"
#include "lint/header_line.hpp"

namespace kelp::input::quill::lint {

namespace {

void check_list(const Source& source, const HeaderPieces& pieces, Collector& findings) {
  std::map<std::string, Range> firsts;
  Entries entries(pieces);
  while (const auto entry = entries.next()) {
    if (entry->name.empty()) continue;
    const Range range = source.range_of(entry->name);
    const auto [first, is_new] = firsts.emplace(core::text::to_lower_copy(entry->name), range);
    if (is_new) continue;
    findings.add(
        {range, {text_fact("name", entry->name)}, {{first->second, "the one that counts"}}});
  }
}

}  // namespace

void check_duplicate_parameter(const Source& source, Collector& findings) {
  for (std::size_t i = 0; i < source.command_lines().size(); ++i)
    check_list(source, pieces_of(source, i), findings);
}

}  // namespace kelp::input::quill::lint
