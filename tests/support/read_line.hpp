#ifndef KELP_INPUT_QUILL_TESTS_SUPPORT_READ_LINE_HPP
#define KELP_INPUT_QUILL_TESTS_SUPPORT_READ_LINE_HPP

#include <optional>
#include <string_view>

#include "reader/coordinate_lines.hpp"
#include "reader/post_line.hpp"

// What the line readers make of a line, as values to compare.

namespace kelp::input::quill {

inline std::optional<AtomRecord> read_atom_line(std::string_view line) {
  AtomRecord atom;
  return parse_atom_line(line, atom) ? std::optional(atom) : std::nullopt;
}

inline std::optional<PostCommand> read_post_line(std::string_view line) {
  PostCommand command;
  return parse_post_line(line, command) ? std::optional(command) : std::nullopt;
}

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_TESTS_SUPPORT_READ_LINE_HPP
