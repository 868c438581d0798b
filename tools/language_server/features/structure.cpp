#include "language_server/features/structure.hpp"

#include <cmath>
#include <cstddef>
#include <optional>
#include <string_view>

#include "language_server/facts/molecule.hpp"

namespace kelp::input::quill::language_server {

namespace {

Json coordinate(double value) { return std::isfinite(value) ? Json(value) : Json(); }

/// Returns the line of the editor that a line of the reader begins on.
std::size_t editor_line(const Snapshot& snapshot, std::size_t line) {
  return snapshot.position_of(snapshot.lines()[line].offset).line;
}

Json atoms_of(const Snapshot& snapshot, const lint::Source& source) {
  const Molecule molecule(source);
  const bool is_inline = source.input().geometry.kind == GeometryKind::Atoms;
  Json list = Json::array();
  for (std::size_t i = 0; i < molecule.atoms().size(); ++i) {
    const AtomRecord& atom = molecule.atoms()[i];
    const Json position = Json::array({coordinate(atom.x), coordinate(atom.y), coordinate(atom.z)});
    const Json line = is_inline ? Json(editor_line(snapshot, source.atom_lines()[i])) : Json();
    list.push_back({{"symbol", atom.symbol}, {"position", position}, {"line", line}});
  }
  return list;
}

std::string_view name_of(PostCommandKind kind) {
  switch (kind) {
    case PostCommandKind::AtomConstraint:
      return "atom";
    case PostCommandKind::BondConstraint:
      return "bond";
    case PostCommandKind::AngleConstraint:
      return "angle";
    case PostCommandKind::DihedralConstraint:
      return "dihedral";
    case PostCommandKind::Scan:
      return "scan";
    case PostCommandKind::PostFile:
    case PostCommandKind::Raw:
      break;
  }
  return {};
}

Json constraints_of(const Snapshot& snapshot, const lint::Source& source) {
  Json list = Json::array();
  for (std::size_t i = 0; i < source.post_lines().size(); ++i) {
    const PostCommand& command = source.input().post_commands[i];
    const std::string_view name = name_of(command.kind);
    if (name.empty()) continue;
    list.push_back({{"kind", name},
                    {"atoms", command.atom_indices},
                    {"line", editor_line(snapshot, source.post_lines()[i])}});
  }
  return list;
}

}  // namespace

Json structure_of(const Snapshot& snapshot, const lint::Source& source) {
  return {{"atoms", atoms_of(snapshot, source)}, {"constraints", constraints_of(snapshot, source)}};
}

}  // namespace kelp::input::quill::language_server
