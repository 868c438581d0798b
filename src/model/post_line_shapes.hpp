#ifndef KELP_INPUT_QUILL_MODEL_POST_LINE_SHAPES_HPP
#define KELP_INPUT_QUILL_MODEL_POST_LINE_SHAPES_HPP

#include <array>
#include <cstddef>
#include <limits>
#include <string_view>

#include "kelp/input/quill/document.hpp"

namespace kelp::input::quill {

/// One kind of post-processing line: how it begins and how many tokens the reader accepts, keyword
/// included. The reader and the writer share these rows, and code that names a kind to people or to
/// programs takes the words from here: a new kind is an enumerator and a row.
struct PostLineShape {
  std::string_view keyword;  // in upper case; empty for raw text, which is any other line
  PostCommandKind kind;
  std::size_t least_tokens;
  std::size_t most_tokens;
  std::string_view form;  // of the line; words in capitals stand for themselves; empty for raw text
  std::string_view noun;
  std::string_view article;  // of the noun; empty where it takes none
  std::string_view subject;  // what a constraint holds; empty for other kinds
  std::string_view name;     // of the kind, in JSON
  std::string_view key;      // of the command line, that names one such line
  std::string_view keys;     // the same for all of them
  const char* option;        // of the command line, that makes such a line
  const char* placeholder;   // for the value of the option
  const char* help;          // what the option does

  constexpr bool accepts(std::size_t tokens) const {
    return least_tokens <= tokens && tokens <= most_tokens;
  }

  /// The number of atoms that a constraint names.
  constexpr std::size_t atoms() const { return least_tokens - 1; }
};

inline constexpr std::size_t any_number_of_tokens = std::numeric_limits<std::size_t>::max();

/// The rows are in the order of the enumerators.
inline constexpr std::array<PostLineShape, 7> post_line_shapes = {{
    {"C", PostCommandKind::AtomConstraint, 2, 2, "C i", "atom constraint", "an", "atom",
     "atom_constraint", "atom_constraint", "atom_constraints", "--atom", "I",
     "Keep an atom in its place"},
    {"B", PostCommandKind::BondConstraint, 3, 3, "B i j", "bond constraint", "a", "bond",
     "bond_constraint", "bond", "bonds", "--bond", "I,J", "Keep the distance of two atoms fixed"},
    {"A", PostCommandKind::AngleConstraint, 4, 4, "A i j k", "angle constraint", "an", "angle",
     "angle_constraint", "angle", "angles", "--angle", "I,J,K",
     "Keep the angle of three atoms fixed"},
    {"D", PostCommandKind::DihedralConstraint, 5, 5, "D i j k l", "dihedral constraint", "a",
     "dihedral", "dihedral_constraint", "dihedral", "dihedrals", "--dihedral", "I,J,K,L",
     "Keep the dihedral of four atoms fixed"},
    {"S", PostCommandKind::Scan, 5, 7, "S i j [k [l]] value steps", "scan", "a", "", "scan", "scan",
     "scans", "--scan", "I,J[,K[,L]]:VALUE:STEPS", "Scan a distance, angle or dihedral"},
    {"POST", PostCommandKind::PostFile, 2, any_number_of_tokens, "POST path", "post file", "a", "",
     "post_file", "post_file", "post_files", "--post", "PATH", "Name a post-processing file"},
    {"", PostCommandKind::Raw, 0, any_number_of_tokens, "", "raw text", "", "", "raw", "raw", "raw",
     "--raw", "TEXT", "Add a line of text as it is"},
}};

/// Returns the row of an upper-case keyword, that of raw text for no word at all, or a null pointer
/// for any other word.
constexpr const PostLineShape* find_post_line_shape(std::string_view keyword) {
  for (const PostLineShape& shape : post_line_shapes) {
    if (shape.keyword == keyword) return &shape;
  }
  return nullptr;
}

/// Returns the row of a kind, or a null pointer for unknown kinds.
constexpr const PostLineShape* find_post_line_shape(PostCommandKind kind) {
  const auto place = static_cast<std::size_t>(kind);  // far above for a negative kind
  return place < post_line_shapes.size() ? &post_line_shapes[place] : nullptr;
}

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_MODEL_POST_LINE_SHAPES_HPP
