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
  numbers.reserve(end - 1);
  for (std::size_t i = 1; i < end; ++i) {
    int number = 0;
    if (!text::try_parse_int(tokens[i], number))
      return false;
    numbers.push_back(number);
  }
  return true;
}

/// scan = "S" 2*4integer number integer
bool parse_scan(const std::vector<std::string>& tokens, PostCommand& command) {
  const std::size_t value_at = tokens.size() - 2;
  double value = 0.0;
  int steps = 0;
  if (!parse_atom_numbers(tokens, value_at, command.atom_indices))
    return false;
  if (!text::try_parse_double(tokens[value_at], value))
    return false;
  if (!text::try_parse_int(tokens[value_at + 1], steps))
    return false;
  command.scan_value = value;
  command.scan_steps = steps;
  return true;
}

}  // namespace

// post-line = keyword *token ; keyword in any letter case, see post_line_shapes
std::optional<PostCommand> parse_post_line(std::string_view text) {
  std::string trimmed = text::trim(text);
  if (trimmed.empty())
    return std::nullopt;
  const std::vector<std::string> tokens = text::split_whitespace(trimmed);
  if (tokens.empty())
    return std::nullopt;

  std::optional<PostCommand> command(PostCommandKind::Raw);
  command->raw_text = std::move(trimmed);
  const PostLineShape* shape = find_post_line_shape(text::to_upper_copy(tokens.front()));
  // The number of tokens decides before any number is read: a constraint with a token too many is
  // text that somebody may want to keep, one with a malformed number is a mistake to report.
  if (shape == nullptr || !shape->accepts(tokens.size()))
    return command;

  command->kind = shape->kind;
  bool is_well_formed = true;
  if (shape->kind == PostCommandKind::PostFile) {
    command->post_file = rest_after_first_word(command->raw_text);
  } else if (shape->kind == PostCommandKind::Scan) {
    is_well_formed = parse_scan(tokens, *command);
  } else {
    is_well_formed = parse_atom_numbers(tokens, tokens.size(), command->atom_indices);
  }
  if (!is_well_formed)
    return std::nullopt;
  return command;
}

}  // namespace kelp::input::quill
