#include <utility>

#include "language_server/facts/outline.hpp"
#include "language_server/facts/source_of_text.hpp"
#include "language_server/features/features.hpp"

namespace kelp::input::quill::language_server {

namespace {

/// The number of the protocol for a kind of symbols, by which editors choose a picture.
int kind_of(PartKind kind) {
  constexpr int file = 1;
  constexpr int name_space = 3;
  constexpr int property = 7;
  constexpr int constant = 14;
  constexpr int array = 18;
  constexpr int event = 24;
  switch (kind) {
    case PartKind::Header:
    case PartKind::PostProcessing:
      return name_space;
    case PartKind::Command:
      return property;
    case PartKind::Charge:
      return constant;
    case PartKind::Coordinates:
      return array;
    case PartKind::Reference:
      return file;
    case PartKind::PostLine:
      break;
  }
  return event;
}

Json nested(const Snapshot& snapshot, const OutlinePart& part) {
  return {{"name", part.name},
          {"detail", part.detail},
          {"kind", kind_of(part.kind)},
          {"range", to_json(snapshot.position_range_of(part.range))},
          {"selectionRange", to_json(snapshot.position_range_of(part.heading))}};
}

Json nested_with_children(const Snapshot& snapshot, const OutlinePart& part) {
  Json children = Json::array();
  for (const OutlinePart& child : part.children) children.push_back(nested(snapshot, child));
  Json symbol = nested(snapshot, part);
  symbol["children"] = std::move(children);
  return symbol;
}

Json flat(const Snapshot& snapshot, const OutlinePart& part) {
  const Json range = to_json(snapshot.position_range_of(part.range));
  return {{"name", part.name},
          {"kind", kind_of(part.kind)},
          {"location", {{"uri", snapshot.uri()}, {"range", range}}}};
}

}  // namespace

// The outline has two levels.
Json document_symbols(const Snapshot& snapshot, const Surroundings& surroundings) {
  const SourceOfText source(snapshot.read());
  const bool is_nested = surroundings.client.has_nested_symbols;
  Json symbols = Json::array();
  for (const OutlinePart& part : make_outline(*source)) {
    if (is_nested) {
      symbols.push_back(nested_with_children(snapshot, part));
      continue;
    }
    symbols.push_back(flat(snapshot, part));
    for (const OutlinePart& child : part.children) {
      symbols.push_back(flat(snapshot, child));
      symbols.back()["containerName"] = part.name;
    }
  }
  return symbols;
}

}  // namespace kelp::input::quill::language_server
