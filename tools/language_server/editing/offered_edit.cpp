#include "language_server/editing/offered_edit.hpp"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string_view>
#include <utility>

#include "lint/lint.hpp"
#include "lint/wording.hpp"
#include "quill-inp/text/terminal_text.hpp"
#include "reader/header_pieces.hpp"
#include "reader/post_line.hpp"

namespace kelp::input::quill::language_server {

namespace {

constexpr std::size_t longest_value = 10'000;

using Offer = std::optional<OfferedEdit>;

std::size_t line_of(const lint::Finding& finding, const lint::Source& source) {
  return lint::place_of(finding.range.offset, source.lines()).line - 1;
}

/// Returns a line with its line end.
lint::Range whole_line(const lint::Source& source, std::size_t line) {
  const LineRecord& record = source.lines()[line];
  return {record.offset, record.length + record.terminator_length};
}

Offer mend_of(const lint::Finding& finding, const lint::Source& /*source*/) {
  if (!finding.mend) return std::nullopt;
  std::string title = tool::shown_on_one_line(lint::words_of(finding).advice);
  return OfferedEdit{std::move(title), finding.mend->edits, finding.mend->is_safe};
}

Offer line_removal(const lint::Finding& finding, const lint::Source& source) {
  return OfferedEdit{"remove this line", {{whole_line(source, line_of(finding, source)), {}}}};
}

/// Removes an entry of a list with the comma before it. It is not the first one. The entries before
/// it are not read, so that a list with many findings takes no more time than many lists.
Offer entry_removal(const lint::Finding& finding, const lint::Source& source) {
  const std::size_t comma = source.text().rfind(',', finding.range.offset);
  const LineRecord& line = source.lines()[line_of(finding, source)];
  const std::string_view list = source.header_pieces()[*line.index].list;
  ParameterEntries entries(list.substr(comma + 1 - source.range_of(list).offset));
  const ParameterPieces entry = entries.next();
  const std::size_t end = source.range_of(entry.value.value_or(entry.name)).end();
  return OfferedEdit{"remove this parameter", {{{comma, end - comma}, {}}}};
}

/// Returns the end of the piece that begins at `begin` and has as many closing parentheses as
/// opening ones, or nothing.
std::optional<std::size_t> balanced_end(std::string_view text, std::size_t begin) {
  int open = 0;
  for (std::size_t i = begin; i < text.size(); ++i) {
    if (text[i] == '(') ++open;
    if (text[i] == ')' && --open == 0) return i + 1;
  }
  return std::nullopt;
}

/// Puts quotes around a value with commas in parentheses, unless it has quotes in it, or is so long
/// that to look for its end would take long for many values.
Offer quoted_value(const lint::Finding& finding, const lint::Source& source) {
  const std::size_t begin = finding.range.offset;
  const LineRecord& line = source.lines()[line_of(finding, source)];
  const std::size_t end_of_search = std::min(line.offset + line.length, begin + longest_value);
  const auto end = balanced_end(source.text().substr(0, end_of_search), begin);
  if (!end) return std::nullopt;
  const std::string_view value = source.text().substr(begin, *end - begin);
  if (value.find_first_of("\"'") != std::string_view::npos) return std::nullopt;
  return OfferedEdit{"put quotes around the value", {{{begin, 0}, "\""}, {{*end, 0}, "\""}}};
}

/// Returns a line as it is written after another line.
std::string as_line_after(const lint::Source& source, std::size_t line, std::size_t before) {
  const LineRecord& record = source.lines()[before];
  const std::string content(source.content(line));
  if (record.terminator_length > 0)
    return content + std::string(source.text().substr(record.offset + record.length,
                                                      record.terminator_length));
  // The line that is moved is not the last one, so it has a line end.
  const LineRecord& moved = source.lines()[line];
  return std::string(source.text().substr(moved.offset + moved.length, moved.terminator_length)) +
         content;
}

/// Moves a constraint that is read as an atom after the first post-processing line, if it is then
/// read as a constraint. The text is not read again for that, which would take long for many
/// constraints: there is an atom before each of them, so that the other atoms are still read as
/// atoms, and a post-processing line is read as what it is whatever is before it.
Offer moved_constraint(const lint::Finding& finding, const lint::Source& source) {
  if (source.post_lines().empty()) return std::nullopt;
  const std::size_t line = line_of(finding, source);
  PostCommand command;
  const bool is_constraint =
      parse_post_line(source.trimmed(line), command) && command.kind != PostCommandKind::Raw;
  if (!is_constraint) return std::nullopt;
  const std::size_t target = source.post_lines().front();
  return OfferedEdit{
      "move this line after the first post-processing line",
      {{whole_line(source, line), {}},
       {{whole_line(source, target).end(), 0}, as_line_after(source, line, target)}}};
}

struct Row {
  std::string_view code;
  Offer (*make)(const lint::Finding&, const lint::Source&);
};

constexpr Row rows[] = {
    {"QL106", moved_constraint}, {"QL203", line_removal},  {"QL206", line_removal},
    {"QL210", line_removal},     {"QL211", entry_removal}, {"QL215", quoted_value},
    {"QL301", line_removal},
};

}  // namespace

std::vector<OfferedEdit> offered_edits(const lint::Finding& finding, const lint::Source& source) {
  std::vector<OfferedEdit> offers;
  if (Offer mend = mend_of(finding, source)) offers.push_back(std::move(*mend));
  for (const Row& row : rows) {
    if (row.code != finding.code) continue;
    if (Offer offer = row.make(finding, source)) offers.push_back(std::move(*offer));
  }
  return offers;
}

}  // namespace kelp::input::quill::language_server
