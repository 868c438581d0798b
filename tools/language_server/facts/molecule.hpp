#ifndef KELP_INPUT_QUILL_LANGUAGE_SERVER_FACTS_MOLECULE_HPP
#define KELP_INPUT_QUILL_LANGUAGE_SERVER_FACTS_MOLECULE_HPP

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "lint/source.hpp"

namespace kelp::input::quill::language_server {

/// Where an atom is: in the document, or in a file that it refers to.
struct AtomPlace {
  std::optional<std::string> path = std::nullopt;  // of the file, as in the document
  std::size_t line = 0;                            // from 0
};

/// The atoms that the numbers in post-processing lines refer to, counted from 1. They are those of
/// the document, or those of the first structure of the only XYZ file or trajectory that it refers
/// to. There are none if that file cannot be read, and if there are several.
class Molecule {
 public:
  /// Keeps a reference to `source`, whose options say how files are found.
  explicit Molecule(const lint::Source& source);

  const std::vector<AtomRecord>& atoms() const;

  /// Returns the atom with a number, or a null pointer.
  const AtomRecord* find(std::int32_t number) const;

  /// Returns where the atom with a number is, or nothing.
  std::optional<AtomPlace> place_of(std::int32_t number) const;

  /// Returns the distance, angle or dihedral angle of two to four atoms. Nothing if there is no
  /// such atom, and where the value is not defined.
  std::optional<double> measure(const std::vector<std::int32_t>& numbers) const;

 private:
  bool is_inline() const;

  const lint::Source& source_;
  std::vector<AtomRecord> referenced_ = {};
  std::size_t first_line_ = 0;  // of the referenced atoms, from 0
};

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_LANGUAGE_SERVER_FACTS_MOLECULE_HPP
