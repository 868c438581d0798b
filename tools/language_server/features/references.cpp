#include "language_server/facts/mentions.hpp"
#include "language_server/facts/source_of_text.hpp"
#include "language_server/features/features.hpp"

namespace kelp::input::quill::language_server {

Json references(const Snapshot& snapshot, const Json& params,
                const Surroundings& /*surroundings*/) {
  const Position position = read_position(object_member(params, "position"));
  const SourceOfText source(snapshot.read());
  const auto atom = find_meant_atom(*source, snapshot.offset_of(position));
  if (!atom) return nullptr;
  std::vector<lint::Range> places = find_mentions(*source, *atom);
  const std::optional<lint::Range> line = find_atom_line(*source, *atom);
  if (line && is_true(find_member(params, "context"), "includeDeclaration"))
    places.insert(places.begin(), *line);
  Json locations = Json::array();
  for (const lint::Range& place : places)
    locations.push_back(
        {{"uri", snapshot.uri()}, {"range", to_json(snapshot.position_range_of(place))}});
  return locations;
}

}  // namespace kelp::input::quill::language_server
