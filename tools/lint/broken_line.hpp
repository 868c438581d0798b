#ifndef KELP_INPUT_QUILL_LINT_BROKEN_LINE_HPP
#define KELP_INPUT_QUILL_LINT_BROKEN_LINE_HPP

#include <cstddef>
#include <optional>
#include <string_view>

#include "kelp/input/quill/lossless/read_text.hpp"

namespace kelp::input::quill::lint {

/// The line that ended the coordinates, or prevented them from beginning, although it looks like
/// one of them. All lines after it are post-processing lines.
struct BrokenLine {
  enum class Kind {
    Label,   // an atom whose first word is not a symbol: "O1", "6"
    Index,   // an atom after a number: "1 O 0 0 0"
    Word,    // an atom with another word that does not fit: "1,5", or a fifth one
    Charge,  // a line of charge and multiplicity: "0 1.0"
  };

  Kind kind = Kind::Word;
  std::size_t line = 0;         // counted from 0
  std::string_view token = {};  // the cause; empty, at the end, for a line that is too short
  std::size_t lost = 0;         // how many lines after it look like coordinates, too
};

/// Looks at the first line that the reader took for post-processing.
std::optional<BrokenLine> find_broken_line(const lossless::ReadText& read);

/// Returns whether a line looks like an atom line, whether or not the reader takes it for one. A
/// constraint does not.
bool resembles_atom_line(std::string_view line);

}  // namespace kelp::input::quill::lint

#endif  // KELP_INPUT_QUILL_LINT_BROKEN_LINE_HPP
