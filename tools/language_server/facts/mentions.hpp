#ifndef KELP_INPUT_QUILL_LANGUAGE_SERVER_FACTS_MENTIONS_HPP
#define KELP_INPUT_QUILL_LANGUAGE_SERVER_FACTS_MENTIONS_HPP

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "lint/post_fields.hpp"
#include "lint/source.hpp"

namespace kelp::input::quill::language_server {

/// Returns the index of the line with a byte of the text, or of the last line for the end of the
/// text. Nothing for a text without lines. Logarithmic in their number.
std::optional<std::size_t> line_at(const lossless::ReadText& read, std::size_t offset);

/// Returns the atom number of a constraint or a scan that a byte is in or right after, or nothing.
std::optional<lint::AtomNumber> find_atom_number(const lint::Source& source, std::size_t offset);

/// Returns the atom that is meant at a place of the text, counted from 1: by the number of it in a
/// post-processing line, or by its own line. Nothing for all other places.
std::optional<std::int32_t> find_meant_atom(const lint::Source& source, std::size_t offset);

/// Returns every place in the post-processing lines that names an atom, in their order.
std::vector<lint::Range> find_mentions(const lint::Source& source, std::int32_t atom);

/// Returns where the line of an atom is, without blanks around it; nothing if the text has none.
std::optional<lint::Range> find_atom_line(const lint::Source& source, std::int32_t atom);

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_LANGUAGE_SERVER_FACTS_MENTIONS_HPP
