#include "language_server/protocol/position.hpp"

namespace kelp::input::quill::language_server {

Json to_json(const Position& position) {
  return {{"line", position.line}, {"character", position.character}};
}

Json to_json(const PositionRange& range) {
  return {{"start", to_json(range.start)}, {"end", to_json(range.end)}};
}

Position read_position(const Json& json) {
  return {integer_member(json, "line"), integer_member(json, "character")};
}

PositionRange read_range(const Json& json) {
  return {read_position(object_member(json, "start")), read_position(object_member(json, "end"))};
}

}  // namespace kelp::input::quill::language_server
