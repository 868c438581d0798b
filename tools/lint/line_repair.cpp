#include "lint/line_repair.hpp"

#include <algorithm>

#include "lint/odd_characters.hpp"
#include "lint/tokens.hpp"
#include "reader/coordinate_lines.hpp"
#include "reader/post_line.hpp"

namespace kelp::input::quill::lint {

namespace {

using Edits = std::vector<ByteEdit>;

constexpr std::size_t atom_tokens = 4;

std::string_view ascii_of(OddKind kind) {
  if (kind == OddKind::Minus) return "-";
  return kind == OddKind::Blank ? " " : "";
}

/// A comma between digits of a word that has no other comma and no point.
bool has_decimal_comma(std::string_view token) {
  return resembles_number(token) && std::count(token.begin(), token.end(), ',') == 1 &&
         token.find('.') == std::string_view::npos;
}

void add_comma_edits(std::string_view line, std::size_t base, Edits& edits) {
  const std::vector<std::string_view> tokens = tokens_of(line);
  if (tokens.size() != atom_tokens) return;
  for (const std::string_view token : tokens) {
    if (!has_decimal_comma(token)) continue;
    const auto start = static_cast<std::size_t>(token.data() - line.data());
    edits.push_back({{base + start + token.find(','), 1}, "."});
  }
}

bool is_atom_line(std::string_view line) {
  return !find_token_unlike_an_atom(line) && is_element(tokens_of(line).front());
}

/// A line that has the form of an atom line becomes one if it is the first after the atoms.
bool is_post_line(std::string_view line) {
  PostCommand command;
  if (!find_token_unlike_an_atom(line)) return false;
  return parse_post_line(line, command) && command.kind != PostCommandKind::Raw;
}

bool comes_first(const ByteEdit& left, const ByteEdit& right) {
  return left.range.offset < right.range.offset;
}

}  // namespace

std::string with_edits(std::string_view line, const Edits& edits, std::size_t base) {
  std::string repaired;
  std::size_t at = 0;
  for (const ByteEdit& edit : edits) {
    const std::size_t start = edit.range.offset - base;
    repaired.append(line.substr(at, start - at)).append(edit.replacement);
    at = start + edit.range.length;
  }
  return repaired.append(line.substr(at));
}

Edits ascii_edits(std::string_view line, std::size_t base) {
  Edits edits;
  for (const OddCharacter& odd : find_odd_characters(line)) {
    if (odd.kind != OddKind::Quote)
      edits.push_back({{base + odd.offset, odd.length}, std::string(ascii_of(odd.kind))});
  }
  return edits;
}

std::optional<Edits> atom_repair(std::string_view line, std::size_t base) {
  Edits edits = ascii_edits(line, base);
  add_comma_edits(line, base, edits);
  std::sort(edits.begin(), edits.end(), comes_first);
  if (edits.empty() || !is_atom_line(with_edits(line, edits, base))) return std::nullopt;
  return edits;
}

std::optional<Edits> charge_repair(std::string_view line, std::size_t base) {
  Edits edits = ascii_edits(line, base);
  if (edits.empty() || !parse_charge_and_multiplicity(with_edits(line, edits, base)))
    return std::nullopt;
  return edits;
}

std::optional<Edits> post_repair(std::string_view line, std::size_t base) {
  Edits edits = ascii_edits(line, base);
  if (edits.empty() || !is_post_line(with_edits(line, edits, base))) return std::nullopt;
  return edits;
}

}  // namespace kelp::input::quill::lint
