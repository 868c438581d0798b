#ifndef KELP_INPUT_QUILL_LANGUAGE_SERVER_PROTOCOL_POSITION_HPP
#define KELP_INPUT_QUILL_LANGUAGE_SERVER_PROTOCOL_POSITION_HPP

#include <cstddef>

#include "language_server/protocol/json.hpp"

namespace kelp::input::quill::language_server {

/// A place in a text as the protocol names it. Both numbers count from 0; `character` counts units
/// of the encoding that client and server have agreed on.
struct Position {
  std::size_t line = 0;
  std::size_t character = 0;

  bool operator==(const Position& other) const {
    return line == other.line && character == other.character;
  }
};

/// From a position up to another one, which is not part of it.
struct PositionRange {
  Position start = {};
  Position end = {};

  bool operator==(const PositionRange& other) const {
    return start == other.start && end == other.end;
  }
};

Json to_json(const Position& position);
Json to_json(const PositionRange& range);

/// Read a position and a range. Throw ResponseError, InvalidParams, for anything else.
Position read_position(const Json& json);
PositionRange read_range(const Json& json);

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_LANGUAGE_SERVER_PROTOCOL_POSITION_HPP
