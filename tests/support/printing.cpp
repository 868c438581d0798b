#include "support/printing.hpp"

#include <gtest/gtest-printers.h>

#include <cstdint>
#include <ostream>

namespace kelp::input::quill {

namespace {

template <typename Kind>
std::int32_t number_of(Kind kind) {
  return static_cast<std::int32_t>(kind);
}

template <typename T>
std::string shown(const T& value) {
  return testing::PrintToString(value);
}

}  // namespace

void PrintTo(const CommandParameter& parameter, std::ostream* out) {
  *out << "{" << shown(parameter.name) << ", " << shown(parameter.value) << "}";
}

void PrintTo(const HeaderCommand& command, std::ostream* out) {
  *out << "{" << shown(command.name) << ", kind " << number_of(command.kind) << ", value "
       << shown(command.value) << ", parameters " << shown(command.parameters) << "}";
}

void PrintTo(const AtomRecord& atom, std::ostream* out) {
  *out << "{" << shown(atom.symbol) << ", " << shown(atom.x) << ", " << shown(atom.y) << ", "
       << shown(atom.z) << "}";
}

void PrintTo(const GeometryBlock& geometry, std::ostream* out) {
  *out << "{kind " << number_of(geometry.kind) << ", charge " << geometry.charge
       << ", multiplicity " << geometry.multiplicity
       << (geometry.has_charge_and_multiplicity ? " (on a line)" : " (no line)") << ", atoms "
       << shown(geometry.atoms) << ", files " << shown(geometry.xyz_files) << "}";
}

void PrintTo(const PostCommand& command, std::ostream* out) {
  *out << "{kind " << number_of(command.kind) << ", atoms " << shown(command.atom_indices)
       << ", value " << shown(command.scan_value) << ", steps " << shown(command.scan_steps)
       << ", file " << shown(command.post_file) << ", raw " << shown(command.raw_text) << "}";
}

void PrintTo(const QuillInput& input, std::ostream* out) {
  *out << "\n  commands " << shown(input.commands) << "\n  geometry " << shown(input.geometry)
       << "\n  post commands " << shown(input.post_commands) << "\n";
}

void PrintTo(const ParseResult& result, std::ostream* out) {
  *out << (result.ok ? "read" : "not read") << ", error " << shown(result.error) << ", warnings "
       << shown(result.warnings) << ", input ";
  PrintTo(result.input, out);
}

void PrintTo(const LineRecord& line, std::ostream* out) {
  *out << "{role " << static_cast<int>(line.role) << ", index " << shown(line.index) << ", offset "
       << line.offset << ", length " << line.length << " and " << line.terminator_length << "}";
}

}  // namespace kelp::input::quill
