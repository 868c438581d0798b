#include <utility>

#include "lint/checks/checks.hpp"
#include "lint/header_line.hpp"
#include "lint/line_repair.hpp"
#include "lint/tokens.hpp"

namespace kelp::input::quill::lint {

namespace {

void check_value(const Source& source, std::string_view value, Collector& findings) {
  const Range range = source.range_of(value);
  std::vector<ByteEdit> edits = ascii_edits(value, range.offset);
  if (edits.empty()) return;
  const std::string repaired = with_edits(value, edits, range.offset);
  if (!is_number(trimmed_view(repaired))) return;
  findings.add({range, {text_fact("value", value)}, {}, Mend{std::move(edits), true}});
}

}  // namespace

void check_odd_number(const Source& source, Collector& findings) {
  if (!source.has_odd_characters()) return;
  for (std::size_t i = 0; i < source.command_lines().size(); ++i) {
    const HeaderPieces& pieces = pieces_of(source, i);
    check_value(source, pieces.value, findings);
    Entries entries(pieces);
    while (const auto entry = entries.next()) {
      if (entry->value) check_value(source, *entry->value, findings);
    }
  }
}

}  // namespace kelp::input::quill::lint
