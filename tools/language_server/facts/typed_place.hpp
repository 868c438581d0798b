#ifndef KELP_INPUT_QUILL_LANGUAGE_SERVER_FACTS_TYPED_PLACE_HPP
#define KELP_INPUT_QUILL_LANGUAGE_SERVER_FACTS_TYPED_PLACE_HPP

#include <cstddef>
#include <string>

#include "kelp/input/quill/lossless/read_text.hpp"
#include "lint/finding.hpp"

namespace kelp::input::quill::language_server {

/// What can be typed at a place of a text.
struct TypedPlace {
  enum class Kind {
    Nothing,        // that is known: a value, a number, other text
    CommandName,    // after the "#" of a header line
    ParameterName,  // in a parameter list
    XyzPath,        // after the keyword of a reference
    FirstWord,      // of any other line
  };

  Kind kind = Kind::Nothing;
  lint::Range word = {};          // what is typed of it already: all before the place
  std::string command = {};       // whose parameter it is
  bool allows_atom = false;       // as the first word: the symbol of one
  bool allows_reference = false;  // as the first word: to an XYZ file or a trajectory
};

/// Returns what can be typed at `offset`, from its line up to there and from the lines before it.
/// The rest of its line only tells whether a parameter list ends there. Linear in the number of
/// lines before.
TypedPlace find_typed_place(const lossless::ReadText& read, std::size_t offset);

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_LANGUAGE_SERVER_FACTS_TYPED_PLACE_HPP
