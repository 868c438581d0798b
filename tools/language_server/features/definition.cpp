#include "language_server/facts/mentions.hpp"
#include "language_server/facts/molecule.hpp"
#include "language_server/facts/source_of_text.hpp"
#include "language_server/features/features.hpp"
#include "language_server/protocol/address.hpp"

namespace kelp::input::quill::language_server {

namespace {

/// Returns the beginning of a line of a file that is perhaps not open.
Json place_in_file(const std::string& uri, std::size_t line) {
  const Position start{line, 0};
  return {{"uri", uri}, {"range", to_json(PositionRange{start, start})}};
}

Json place_in_text(const Snapshot& snapshot, const lint::Range& range) {
  return {{"uri", snapshot.uri()}, {"range", to_json(snapshot.position_range_of(range))}};
}

}  // namespace

Json definition(const Snapshot& snapshot, std::size_t offset, const Surroundings& surroundings) {
  const SourceOfText source(snapshot.read(), surroundings.read_reference);
  const std::optional<lint::AtomNumber> number = find_atom_number(*source, offset);
  if (!number) return nullptr;
  const std::optional<AtomPlace> place = Molecule(*source).place_of(number->number);
  if (!place) return nullptr;
  if (!place->path) return place_in_text(snapshot, source->range_of(source->trimmed(place->line)));
  const auto uri = address_of_reference(snapshot.uri(), *place->path);
  return uri ? place_in_file(*uri, place->line) : Json(nullptr);
}

}  // namespace kelp::input::quill::language_server
