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

/// The odd characters of a line: the first one of a kind, how many of this kind, and how many of
/// any kind there are.
struct OddLine {
  std::optional<OddCharacter> first = std::nullopt;
  std::size_t count = 0;
  std::size_t all = 0;
};

OddLine look_at(const Source& source, std::size_t line, OddKind kind) {
  const LineRecord& record = source.lines()[line];
  const std::string_view text = source.text().substr(0, record.offset + record.length);
  OddLine odd;
  for (auto next = next_odd_character(text, record.offset); next;
       next = next_odd_character(text, next->end())) {
    ++odd.all;
    if (next->kind != kind) continue;
    if (!odd.first) odd.first = next;
    ++odd.count;
  }
  return odd;
}

Finding make_finding(const Source& source, std::size_t line, const OddLine& odd,
                     std::size_t most_edits) {
  Finding finding{{odd.first->offset, odd.first->length},
                  {text_fact("character", name_of_character(odd.first->code_point)),
                   count_fact("others", odd.count - 1)}};
  if (odd.all <= most_edits) finding.mend = find_mend(source, line);
  return finding;
}

}  // namespace

void find_odd_lines(const Source& source, OddKind kind, Collector& findings) {
  if (!source.has_odd_characters()) return;
  for (std::size_t i = 0; i < source.lines().size(); ++i) {
    const OddLine odd = look_at(source, i, kind);
    if (odd.first) findings.add(make_finding(source, i, odd, findings.most_edits()));
  }
}

}  // namespace kelp::input::quill::lint
