#include "language_server/facts/mentions.hpp"
#include "language_server/facts/source_of_text.hpp"
#include "language_server/features/features.hpp"

namespace kelp::input::quill::language_server {

namespace {

// Of the protocol: places that use something, and the one that gives it its value.
constexpr int read_kind = 2;
constexpr int write_kind = 3;

Json highlight(const Snapshot& snapshot, const lint::Range& range, int kind) {
  return {{"range", to_json(snapshot.position_range_of(range))}, {"kind", kind}};
}

}  // namespace

Json document_highlights(const Snapshot& snapshot, std::size_t offset,
                         const Surroundings& /*surroundings*/) {
  const SourceOfText source(snapshot.read());
  const std::optional<std::int32_t> atom = find_meant_atom(*source, offset);
  if (!atom) return nullptr;
  Json highlights = Json::array();
  if (const std::optional<lint::Range> line = find_atom_line(*source, *atom))
    highlights.push_back(highlight(snapshot, *line, write_kind));
  for (const lint::Range& place : find_mentions(*source, *atom))
    highlights.push_back(highlight(snapshot, place, read_kind));
  return highlights;
}

}  // namespace kelp::input::quill::language_server
