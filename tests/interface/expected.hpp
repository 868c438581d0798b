#ifndef KELP_INPUT_QUILL_TESTS_INTERFACE_EXPECTED_HPP
#define KELP_INPUT_QUILL_TESTS_INTERFACE_EXPECTED_HPP

#include <cstdint>
#include <optional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest-printers.h>

#include "kelp/input/quill/quill.hpp"

// Short functions that make the documents which texts are read as.

namespace kelp::input::quill {

inline HeaderCommand flag(std::string name) { return HeaderCommand(std::move(name)); }

inline HeaderCommand assignment(std::string name, std::string value) {
  return HeaderCommand(std::move(name), HeaderCommandKind::Assignment, std::move(value));
}

inline HeaderCommand list(std::string name, std::vector<CommandParameter> parameters) {
  return HeaderCommand(std::move(name), HeaderCommandKind::ParameterList, std::nullopt,
                       std::move(parameters));
}

inline GeometryBlock atoms(std::vector<AtomRecord> records) {
  GeometryBlock geometry;
  geometry.kind = GeometryKind::Atoms;
  geometry.atoms = std::move(records);
  return geometry;
}

inline GeometryBlock files(std::vector<std::string> paths) {
  GeometryBlock geometry;
  geometry.kind = GeometryKind::XyzFile;
  geometry.xyz_files = std::move(paths);
  return geometry;
}

inline GeometryBlock trajectory(std::vector<std::string> paths) {
  GeometryBlock geometry;
  geometry.kind = GeometryKind::XyzTrajectory;
  geometry.xyz_files = std::move(paths);
  return geometry;
}

/// The same section, or none, after a charge and multiplicity line.
inline GeometryBlock charged(std::int32_t charge, std::int32_t multiplicity,
                             GeometryBlock geometry = {}) {
  geometry.charge = charge;
  geometry.multiplicity = multiplicity;
  geometry.has_charge_and_multiplicity = true;
  return geometry;
}

/// The functions below take the line that a post-processing command was read from, or is written
/// as: the reader keeps it in every one.
inline PostCommand constraint(PostCommandKind kind, std::vector<std::int32_t> atom_numbers,
                              std::string line) {
  return PostCommand(kind, std::move(atom_numbers), std::nullopt, std::nullopt, {},
                     std::move(line));
}

inline PostCommand scan(std::vector<std::int32_t> atom_numbers, double value, std::int32_t steps,
                        std::string line) {
  return PostCommand(PostCommandKind::Scan, std::move(atom_numbers), value, steps, {},
                     std::move(line));
}

inline PostCommand post_file(std::string path, std::string line) {
  return PostCommand(PostCommandKind::PostFile, {}, std::nullopt, std::nullopt, std::move(path),
                     std::move(line));
}

inline PostCommand raw(std::string line) {
  return constraint(PostCommandKind::Raw, {}, std::move(line));
}

/// The result of reading a text.
inline ParseResult read_as(QuillInput input, std::vector<std::string> warnings = {}) {
  return ParseResult(std::move(input), true, "", std::move(warnings));
}

/// The diagnostic of a text without coordinates.
inline const std::string no_section = "No QUILL coordinate section found";

/// One text and what it is read as.
struct ReadingRow {
  std::string name;
  std::string text;
  ParseResult result;
};

inline void PrintTo(const ReadingRow& row, std::ostream* out) {
  *out << testing::PrintToString(row.text);
}

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_TESTS_INTERFACE_EXPECTED_HPP
