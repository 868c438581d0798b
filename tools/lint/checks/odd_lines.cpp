#include "lint/checks/odd_lines.hpp"

#include <algorithm>
#include <cstdio>
#include <string>
#include <utility>

#include "lint/line_repair.hpp"
#include "reader/header_pieces.hpp"

namespace kelp::input::quill::lint {

namespace {

std::string name_of_character(char32_t code_point) {
  char text[16];  // the longest is U+10FFFF
  static_cast<void>(std::snprintf(text, sizeof text, "U+%04X", static_cast<unsigned>(code_point)));
  return text;
}

/// The edits that make the name of a command ASCII, if that makes it one word.
std::vector<ByteEdit> name_edits(const Source& source, std::string_view line) {
  const std::string_view name = find_header_pieces(line).name;
  std::vector<ByteEdit> edits = ascii_edits(name, source.range_of(name).offset);
  const std::string repaired = with_edits(name, edits, source.range_of(name).offset);
  const std::string_view word = trimmed_view(repaired);
  if (word.find_first_of(" \t") != std::string_view::npos) edits.clear();
  return edits;
}

std::optional<Mend> find_mend(const Source& source, std::size_t line) {
  const LineRecord& record = source.lines()[line];
  const std::string_view content = source.content(line);
  std::vector<ByteEdit> edits;
  if (record.role == LineRole::Command) {
    edits = name_edits(source, content);
  } else if (record.role == LineRole::PostCommand || record.role == LineRole::Dropped) {
    edits = post_repair(content, record.offset).value_or(edits);
  }
  if (edits.empty()) return std::nullopt;
  return Mend{std::move(edits), true};
}

Finding make_finding(const Source& source, std::size_t line, const OddCharacter& first,
                     std::size_t count) {
  return {{first.offset, first.length},
          {text_fact("character", name_of_character(first.code_point)),
           count_fact("others", count - 1)},
          {},
          find_mend(source, line)};
}

}  // namespace

Findings find_odd_lines(const Source& source, OddKind kind) {
  Findings findings;
  const std::vector<OddCharacter>& all = source.odd_characters();
  const auto is_wanted = [&](const OddCharacter& odd) { return odd.kind == kind; };
  std::size_t line = 0;
  for (auto odd = std::find_if(all.begin(), all.end(), is_wanted); odd != all.end();) {
    while (source.lines()[line].offset + source.lines()[line].length <= odd->offset) ++line;
    const std::size_t end = source.lines()[line].offset + source.lines()[line].length;
    const auto next = std::find_if(odd, all.end(),
                                   [&](const OddCharacter& other) { return other.offset >= end; });
    const auto count = static_cast<std::size_t>(std::count_if(odd, next, is_wanted));
    findings.push_back(make_finding(source, line, *odd, count));
    odd = std::find_if(next, all.end(), is_wanted);
  }
  return findings;
}

}  // namespace kelp::input::quill::lint
