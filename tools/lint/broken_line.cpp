#include "lint/broken_line.hpp"

#include <algorithm>
#include <string>
#include <vector>

#include "kelp/core/text.hpp"
#include "lint/line_repair.hpp"
#include "lint/odd_characters.hpp"
#include "lint/tokens.hpp"
#include "model/post_line_shapes.hpp"
#include "reader/coordinate_lines.hpp"
#include "reader/header_pieces.hpp"

namespace kelp::input::quill::lint {

namespace {

using Kind = BrokenLine::Kind;
using Tokens = std::vector<std::string_view>;

constexpr std::size_t atom_tokens = 4;
constexpr std::size_t longest_symbol = 2;

bool is_letter(char c) { return ('A' <= c && c <= 'Z') || ('a' <= c && c <= 'z'); }

bool is_digit(char c) { return '0' <= c && c <= '9'; }

bool is_keyword(std::string_view token) {
  return find_post_line_shape(core::text::to_upper_copy(token)) != nullptr;
}

/// Three words from `first` on that look like numbers.
bool has_coordinates(const Tokens& tokens, std::size_t first) {
  return tokens.size() >= first + 3 &&
         std::all_of(tokens.begin() + static_cast<std::ptrdiff_t>(first),
                     tokens.begin() + static_cast<std::ptrdiff_t>(first) + 3, resembles_number);
}

/// "1 O 0 0 0"
bool has_index(const Tokens& tokens) {
  return tokens.size() > atom_tokens && is_integer(tokens[0]) && is_element(tokens[1]) &&
         has_coordinates(tokens, 2);
}

/// "O1", "C_a", "H(2)": a symbol with something after it that is not a letter.
bool is_label(std::string_view token) {
  const auto letters = static_cast<std::size_t>(
      std::find_if_not(token.begin(), token.end(), is_letter) - token.begin());
  return 0 < letters && letters <= longest_symbol && letters < token.size() &&
         static_cast<unsigned char>(token[letters]) < 0x80 && is_element(token.substr(0, letters));
}

bool is_atomic_number(std::string_view token) {
  return std::all_of(token.begin(), token.end(), is_digit) && is_integer(token);
}

/// A first word in the place of a symbol: a label, or the number of an element.
bool has_label(const Tokens& tokens) {
  if (!has_coordinates(tokens, 1)) return false;
  return is_label(tokens[0]) || (tokens.size() == atom_tokens && is_atomic_number(tokens[0]));
}

/// The atom numbers of a constraint or scan are plain integers, and a coordinate is rarely one.
bool has_coordinates_of_constraint(const Tokens& tokens) {
  return is_keyword(tokens[0]) && is_integer(tokens[1]) && is_integer(tokens[2]);
}

/// A scan with a decimal comma: its first words are atom numbers, and their count is right.
bool is_malformed_post_line(const Tokens& tokens) {
  const PostLineShape* shape = find_post_line_shape(core::text::to_upper_copy(tokens[0]));
  return shape != nullptr && shape->accepts(tokens.size()) && is_integer(tokens[1]);
}

/// A symbol and two numbers at least, and any other words.
bool has_symbol(std::string_view line, const Tokens& tokens) {
  if (tokens.size() < 2 || is_malformed_post_line(tokens)) return false;
  if (atom_repair(line)) return true;
  if (tokens.size() < 3 || !is_element(tokens[0])) return false;
  if (!resembles_number(tokens[1]) || !resembles_number(tokens[2])) return false;
  return !has_coordinates_of_constraint(tokens) ||
         (tokens.size() >= atom_tokens && resembles_number(tokens[3]) && !is_integer(tokens[3]));
}

std::optional<Kind> kind_of_atom(std::string_view line, const Tokens& tokens) {
  if (tokens.empty()) return std::nullopt;
  if (has_index(tokens)) return Kind::Index;
  if (has_label(tokens)) return Kind::Label;
  if (has_symbol(line, tokens)) return Kind::Word;
  return std::nullopt;
}

/// Two numbers of which one is not an integer, or a third word, or a number alone.
bool resembles_charge_line(std::string_view line, const Tokens& tokens) {
  if (charge_repair(line)) return true;
  if (tokens.empty() || tokens.size() > 3 || !resembles_number(tokens[0])) return false;
  return tokens.size() == 1 ? is_integer(tokens[0]) : resembles_number(tokens[1]);
}

std::string_view token_of_charge_line(std::string_view line, const Tokens& tokens) {
  for (const std::string_view token : tokens) {
    if (!is_integer(token)) return token;
  }
  return tokens.size() > 2 ? tokens[2] : line.substr(line.size());
}

/// A word that should be several: it contains a blank that the reader does not take for one.
std::string_view fused_token(const Tokens& tokens) {
  const auto token = std::find_if(tokens.begin(), tokens.end(), [](std::string_view each) {
    return next_odd_character(each, 0).has_value();
  });
  return token == tokens.end() ? std::string_view() : *token;
}

std::string_view token_of_atom(std::string_view line, const Tokens& tokens) {
  const std::string_view token = find_token_unlike_an_atom(line).value_or(std::string_view());
  return token.empty() && atom_repair(line) ? fused_token(tokens) : token;
}

std::string_view token_of(Kind kind, std::string_view line, const Tokens& tokens) {
  if (kind == Kind::Charge) return token_of_charge_line(line, tokens);
  if (kind == Kind::Word) return token_of_atom(line, tokens);
  return tokens[0];
}

bool resembles_reference(std::string_view line) {
  std::string keyword;
  std::string path;
  return parse_xyz_reference(line, keyword, path) && !path.empty();
}

/// Whether the document contains only the text of the line.
bool is_text_alone(const LineRecord& line, const QuillInput& input) {
  return line.role == LineRole::Dropped ||
         (line.role == LineRole::PostCommand &&
          input.post_commands[*line.index].kind == PostCommandKind::Raw);
}

bool resembles_coordinates(std::string_view line, Kind kind) {
  return resembles_atom_line(line) || (kind == Kind::Charge && resembles_reference(line));
}

std::size_t count_lost(const lossless::ReadText& read, const BrokenLine& broken) {
  std::size_t lost = 0;
  for (std::size_t i = broken.line + 1; i < read.lines.size(); ++i) {
    const LineRecord& line = read.lines[i];
    if (is_text_alone(line, read.result.input) &&
        resembles_coordinates(lossless::content_of(line, read.text), broken.kind))
      ++lost;
  }
  return lost;
}

std::optional<std::size_t> first_post_line(const std::vector<LineRecord>& lines) {
  const auto line = std::find_if(lines.begin(), lines.end(), [](const LineRecord& record) {
    return record.role == LineRole::PostCommand || record.role == LineRole::Dropped;
  });
  if (line == lines.end()) return std::nullopt;
  return static_cast<std::size_t>(line - lines.begin());
}

}  // namespace

bool resembles_atom_line(std::string_view line) {
  const std::string_view content = trimmed_view(line);
  if (!find_token_unlike_an_atom(content)) return is_element(tokens_of(content).front());
  return kind_of_atom(content, tokens_of(content)).has_value();
}

std::optional<BrokenLine> find_broken_line(const lossless::ReadText& read) {
  const GeometryBlock& geometry = read.result.input.geometry;
  if (geometry.kind != GeometryKind::None && geometry.kind != GeometryKind::Atoms)
    return std::nullopt;
  const auto line = first_post_line(read.lines);
  if (!line || !is_text_alone(read.lines[*line], read.result.input)) return std::nullopt;
  const std::string_view content = trimmed_view(lossless::content_of(read.lines[*line], read.text));
  const Tokens tokens = tokens_of(content);

  BrokenLine broken;
  broken.line = *line;
  const bool has_section =
      geometry.kind != GeometryKind::None || geometry.has_charge_and_multiplicity;
  if (!has_section && resembles_charge_line(content, tokens)) {
    broken.kind = Kind::Charge;
    broken.lost = count_lost(read, broken);
    // Without a header before it and coordinates after it, two numbers can be anything.
    if (broken.lost == 0 && (read.result.input.commands.empty() || tokens.size() != 2))
      return std::nullopt;
  } else if (const auto kind = kind_of_atom(content, tokens)) {
    broken.kind = *kind;
    broken.lost = count_lost(read, broken);
  } else {
    return std::nullopt;
  }
  broken.token = token_of(broken.kind, content, tokens);
  return broken;
}

}  // namespace kelp::input::quill::lint
