#include "language_server/facts/molecule.hpp"

#include <utility>

#include "kelp/input/quill/lossless/xyz_frames.hpp"
#include "language_server/facts/measures.hpp"

namespace kelp::input::quill::language_server {

Molecule::Molecule(const lint::Source& source) : source_(source) {
  if (is_inline() || source.references().size() != 1) return;
  lossless::XyzReading reading =
      lossless::read_xyz_frame(source.references().front().file.content, 1);
  if (reading.frames.empty()) return;
  referenced_ = std::move(reading.frames.front().atoms);
  first_line_ = reading.frames.front().first_atom_line - 1;
}

bool Molecule::is_inline() const { return source_.input().geometry.kind == GeometryKind::Atoms; }

const std::vector<AtomRecord>& Molecule::atoms() const {
  return is_inline() ? source_.input().geometry.atoms : referenced_;
}

const AtomRecord* Molecule::find(std::int32_t number) const {
  const bool is_there = number >= 1 && static_cast<std::size_t>(number) <= atoms().size();
  return is_there ? &atoms()[static_cast<std::size_t>(number) - 1] : nullptr;
}

std::optional<AtomPlace> Molecule::place_of(std::int32_t number) const {
  if (find(number) == nullptr) return std::nullopt;
  const auto index = static_cast<std::size_t>(number) - 1;
  if (is_inline()) return AtomPlace{std::nullopt, source_.atom_lines()[index]};
  return AtomPlace{source_.input().geometry.xyz_files.front(), first_line_ + index};
}

std::optional<double> Molecule::measure(const std::vector<std::int32_t>& numbers) const {
  std::vector<AtomRecord> named;
  for (const std::int32_t number : numbers) {
    const AtomRecord* atom = find(number);
    if (atom == nullptr) return std::nullopt;
    named.push_back(*atom);
  }
  return language_server::measure(named);
}

}  // namespace kelp::input::quill::language_server
