#ifndef KELP_INPUT_QUILL_LANGUAGE_SERVER_FACTS_OUTLINE_HPP
#define KELP_INPUT_QUILL_LANGUAGE_SERVER_FACTS_OUTLINE_HPP

#include <string>
#include <vector>

#include "lint/source.hpp"

namespace kelp::input::quill::language_server {

/// What a part of an input is, for the outline of a text.
enum class PartKind { Header, Command, Charge, Coordinates, Reference, PostProcessing, PostLine };

/// A part of an input in the outline of a text.
struct OutlinePart {
  PartKind kind = PartKind::Command;
  std::string name = {};     // never empty
  std::string detail = {};   // may be empty
  lint::Range range = {};    // all of it
  lint::Range heading = {};  // its first line, without blanks around it
  std::vector<OutlinePart> children = {};
};

/// Returns the parts of an input in their order: the header with its commands, charge and
/// multiplicity, the coordinates with the files that they refer to, and the post-processing lines.
/// Atoms are one part, not one for each. Parts that the input does not have are left out.
std::vector<OutlinePart> make_outline(const lint::Source& source);

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_LANGUAGE_SERVER_FACTS_OUTLINE_HPP
