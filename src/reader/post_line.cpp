#include "reader/post_line.hpp"

#include <cstddef>
#include <string>
#include <vector>

#include "kelp/core/text.hpp"
#include "model/post_line_shapes.hpp"
#include "reader/coordinate_lines.hpp"

namespace kelp::input::quill {

namespace text = kelp::core::text;

namespace {

/// Reads the tokens after the keyword and before number `end` as atom numbers.
bool parse_atom_numbers(const std::vector<std::string>& tokens, std::size_t end,
                        std::vector<std::int32_t>& numbers) {
  numbers.resize(end - 1);
  for (std::size_t i = 1; i < end; ++i) {
    if (!text::try_parse_int(tokens[i], numbers[i - 1])) return false;
  }
  return true;
}

/// scan = "S" 2*4integer number integer
bool parse_scan(const std::vector<std::string>& tokens, PostCommand& command) {
  const std::size_t value_at = tokens.size() - 2;
  return parse_atom_numbers(tokens, value_at, command.atom_indices) &&
         text::try_parse_double(tokens[value_at], command.scan_value.emplace()) &&
         text::try_parse_int(tokens[value_at + 1], command.scan_steps.emplace());
}

/// Reads what follows the keyword of a line that has the number of tokens of its kind.
bool parse_fields(const std::vector<std::string>& tokens, PostCommand& command) {
  if (command.kind == PostCommandKind::Scan) return parse_scan(tokens, command);
  if (command.kind == PostCommandKind::PostFile) {
    command.post_file = rest_after_first_word(command.raw_text);
    return true;
  }
  return parse_atom_numbers(tokens, tokens.size(), command.atom_indices);
}

}  // namespace

// post-line = keyword *token ; keyword in any letter case, see post_line_shapes
bool parse_post_line(std::string_view line, PostCommand& command) {
  command.raw_text = text::trim(line);
  const std::vector<std::string> tokens = text::split_whitespace(command.raw_text);
  if (tokens.empty()) return false;
  const PostLineShape* shape = find_post_line_shape(text::to_upper_copy(tokens.front()));
  // The number of tokens decides before any number is read: a constraint with a token too many is
  // text that somebody may want to keep, one with a malformed number is a mistake to report.
  if (shape == nullptr || !shape->accepts(tokens.size())) return true;
  command.kind = shape->kind;
  return parse_fields(tokens, command);
}

}  // namespace kelp::input::quill
