#include "language_server/facts/typed_place.hpp"

#include <algorithm>
#include <string_view>

#include "kelp/core/text.hpp"
#include "lint/tokens.hpp"
#include "reader/coordinate_lines.hpp"
#include "reader/header_pieces.hpp"

namespace kelp::input::quill::language_server {

namespace {

using Kind = TypedPlace::Kind;

/// Returns the beginning of the line with a place, as the reader counts lines.
std::size_t line_start(std::string_view text, std::size_t offset) {
  const std::size_t end = text.substr(0, offset).rfind('\n');
  return end == std::string_view::npos ? 0 : end + 1;
}

std::string_view rest_of_line(std::string_view text, std::size_t offset) {
  const std::string_view rest = text.substr(offset);
  return rest.substr(0, rest.find('\n'));
}

/// Returns what the last line with a meaning before a place is; a blank line if there is none.
LineRole role_before(const std::vector<LineRecord>& lines, std::size_t start) {
  LineRole role = LineRole::Blank;
  for (const LineRecord& line : lines) {
    if (line.offset >= start) break;
    if (line.role != LineRole::Blank) role = line.role;
  }
  return role;
}

bool is_header(LineRole before) { return before == LineRole::Blank || before == LineRole::Command; }

std::string_view without_leading_blanks(std::string_view text) {
  const std::string_view trimmed = trimmed_view(text);
  return trimmed.empty() ? text.substr(text.size())
                         : text.substr(static_cast<std::size_t>(trimmed.data() - text.data()));
}

/// Sets the word to a view that ends at the place.
void set_word(TypedPlace& place, std::string_view word, std::size_t offset) {
  place.word = {offset - word.size(), word.size()};
}

/// Whether a place in a line with a parameter list is in the list. Its last ")" ends it; one after
/// the place may not be typed yet.
bool is_in_list(std::string_view line, std::string_view rest) {
  const auto count = [&](char c) { return std::count(line.begin(), line.end(), c); };
  return rest.find(')') != std::string_view::npos || count('(') > count(')');
}

/// `line` ends at the place, where the `rest` of the line begins. Its first character that is not a
/// blank is "#".
TypedPlace place_in_command(std::string_view line, std::string_view rest, std::size_t offset) {
  TypedPlace place;
  const HeaderPieces pieces = find_header_pieces(line);
  if (pieces.kind == HeaderCommandKind::Flag) {
    place.kind = Kind::CommandName;
    set_word(place, without_leading_blanks(line.substr(line.find('#') + 1)), offset);
    return place;
  }
  if (pieces.kind == HeaderCommandKind::Assignment || !is_in_list(line, rest)) return place;
  ParameterPieces last;
  // Not the list of the pieces, which has lost the blanks before the place.
  const std::string_view list = line.substr(line.find('(') + 1);
  for (ParameterEntries entries(list); !entries.at_end();) last = entries.next();
  if (last.value) return place;
  place.kind = Kind::ParameterName;
  place.command = std::string(trimmed_view(pieces.name));
  set_word(place, without_leading_blanks(last.name), offset);
  return place;
}

/// Returns whether a line begins with the keyword of a reference and something after it.
bool is_reference_begun(std::string_view line) {
  const std::string_view rest = without_leading_blanks(line);
  const std::vector<std::string_view> tokens = lint::tokens_of(rest);
  if (tokens.empty() || tokens.front().size() == rest.size()) return false;
  const std::string keyword = core::text::to_upper_copy(tokens.front());
  return keyword == xyz_keyword || keyword == trajectory_keyword;
}

TypedPlace place_in_reference(std::string_view line, std::size_t offset) {
  TypedPlace place;
  place.kind = Kind::XyzPath;
  const std::string_view rest = without_leading_blanks(line);
  const std::size_t keyword = lint::tokens_of(rest).front().size();
  set_word(place, without_leading_blanks(rest.substr(keyword)), offset);
  return place;
}

TypedPlace place_of_first_word(std::string_view line, LineRole before, std::size_t offset) {
  TypedPlace place;
  const std::string_view word = without_leading_blanks(line);
  if (lint::tokens_of(line).size() > 1 || trimmed_view(word).size() < word.size()) return place;
  place.kind = Kind::FirstWord;
  set_word(place, word, offset);
  const bool is_first = is_header(before) || before == LineRole::ChargeAndMultiplicity;
  place.allows_atom = is_first || before == LineRole::Atom;
  place.allows_reference = is_first || before == LineRole::XyzReference;
  return place;
}

}  // namespace

TypedPlace find_typed_place(const lossless::ReadText& read, std::size_t offset) {
  const std::string_view text = read.text;
  const std::size_t start = line_start(text, offset);
  const std::string_view line = text.substr(start, offset - start);
  const LineRole before = role_before(read.lines, start);
  const bool is_command = trimmed_view(line).substr(0, 1) == "#";
  if (is_command && is_header(before))
    return place_in_command(line, rest_of_line(text, offset), offset);
  if (is_command) return {};
  if (is_reference_begun(line)) return place_in_reference(line, offset);
  return place_of_first_word(line, before, offset);
}

}  // namespace kelp::input::quill::language_server
