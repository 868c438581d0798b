#include "reader/coordinate_lines.hpp"

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <vector>

#include "kelp/chem/elements.hpp"
#include "kelp/core/text.hpp"

namespace kelp::input::quill {

namespace elements = kelp::chem::elements;
namespace text = kelp::core::text;

namespace {

constexpr std::size_t atom_tokens = 4;

// The C library's tests take the value of an unsigned char; a plain char above 0x7F may be
// negative.
bool is_letter(char c) { return std::isalpha(static_cast<unsigned char>(c)) != 0; }

bool is_blank(char c) { return std::isspace(static_cast<unsigned char>(c)) != 0; }

bool is_symbol(const std::string& token) {
  return std::all_of(token.begin(), token.end(), is_letter);
}

/// Returns whether a token is one that an atom line may have in this place.
bool is_atom_token(const std::string& token, std::size_t place) {
  double number = 0.0;
  return place == 0 ? is_symbol(token) : text::try_parse_double(token, number);
}

/// Only blanks come between two tokens, so the first place where a token is found is its own.
std::string_view view_of_token(std::string_view line, const std::vector<std::string>& tokens,
                               std::size_t index) {
  std::size_t at = 0;
  for (std::size_t i = 0; i < index; ++i) at = line.find(tokens[i], at) + tokens[i].size();
  return line.substr(line.find(tokens[index], at), tokens[index].size());
}

}  // namespace

// charge-line = integer integer
std::optional<ChargeAndMultiplicity> parse_charge_and_multiplicity(std::string_view line) {
  const std::vector<std::string> tokens = text::split_whitespace(line);
  if (tokens.size() != 2) return std::nullopt;
  ChargeAndMultiplicity numbers{};
  if (!text::try_parse_int(tokens[0], numbers.charge)) return std::nullopt;
  if (!text::try_parse_int(tokens[1], numbers.multiplicity)) return std::nullopt;
  return numbers;
}

// reference-line = ( "XYZ" / "XYZTRAJ" ) [ path ] ; keyword in any letter case, path with its
// blanks
bool parse_xyz_reference(std::string_view line, std::string& keyword, std::string& path) {
  const std::string trimmed = text::trim(line);
  const std::vector<std::string> tokens = text::split_whitespace(trimmed);
  if (tokens.empty()) return false;
  const std::string folded = text::to_lower_copy(tokens.front());
  if (folded != text::to_lower_copy(xyz_keyword) &&
      folded != text::to_lower_copy(trajectory_keyword)) {
    return false;
  }
  keyword = text::to_upper_copy(tokens.front());
  path = rest_after_first_word(trimmed);
  return true;
}

// atom-line = letters number number number
bool parse_atom_line(std::string_view line, AtomRecord& atom) {
  const std::vector<std::string> tokens = text::split_whitespace(line);
  if (tokens.size() != atom_tokens) return false;
  if (!is_symbol(tokens[0])) return false;
  if (!text::try_parse_double(tokens[1], atom.x)) return false;
  if (!text::try_parse_double(tokens[2], atom.y)) return false;
  if (!text::try_parse_double(tokens[3], atom.z)) return false;
  atom.symbol = elements::normalize_symbol(tokens[0]);
  return true;
}

std::optional<std::string_view> find_token_unlike_an_atom(std::string_view line) {
  const std::vector<std::string> tokens = text::split_whitespace(line);
  if (tokens.size() > atom_tokens) return view_of_token(line, tokens, atom_tokens);
  if (tokens.size() < atom_tokens) return line.substr(line.size());
  for (std::size_t i = 0; i < atom_tokens; ++i) {
    if (!is_atom_token(tokens[i], i)) return view_of_token(line, tokens, i);
  }
  return std::nullopt;
}

std::string rest_after_first_word(std::string_view text) {
  while (!text.empty() && is_blank(text.front())) text.remove_prefix(1);
  while (!text.empty() && !is_blank(text.front())) text.remove_prefix(1);
  while (!text.empty() && is_blank(text.front())) text.remove_prefix(1);
  return std::string(text);
}

}  // namespace kelp::input::quill
