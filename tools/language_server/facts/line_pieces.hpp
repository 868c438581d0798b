#ifndef KELP_INPUT_QUILL_LANGUAGE_SERVER_FACTS_LINE_PIECES_HPP
#define KELP_INPUT_QUILL_LANGUAGE_SERVER_FACTS_LINE_PIECES_HPP

#include <cstddef>
#include <vector>

#include "lint/source.hpp"

namespace kelp::input::quill::language_server {

/// What a piece of a line is to the reader.
enum class PieceKind {
  CommandName,    // with the "#" before it
  TaskName,       // the same, of a command that says what to compute
  ParameterName,  // before the "=" of a parameter, or the whole entry
  Value,          // of an assignment or a parameter, with its quotes
  Number,         // charge, multiplicity, a coordinate, a value that is a number
  Element,        // the symbol of an atom
  Keyword,        // "XYZ", "B", "POST"
  Path,
  AtomNumber,  // of a constraint or a scan
  RawText,     // a post-processing line that is kept as it is
  Unread,      // what the reader drops: a line, or the text after a parameter list
};

/// A piece of a line, without blanks around it.
struct LinePiece {
  PieceKind kind;
  lint::Range range;
};

/// Returns the pieces of a line in their order, at least one byte each; a blank line has none.
/// Linear in the length of the line.
std::vector<LinePiece> find_line_pieces(const lint::Source& source, std::size_t line);

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_LANGUAGE_SERVER_FACTS_LINE_PIECES_HPP
