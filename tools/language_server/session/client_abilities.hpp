#ifndef KELP_INPUT_QUILL_LANGUAGE_SERVER_SESSION_CLIENT_ABILITIES_HPP
#define KELP_INPUT_QUILL_LANGUAGE_SERVER_SESSION_CLIENT_ABILITIES_HPP

#include "language_server/documents/position_encoding.hpp"
#include "language_server/features/feature.hpp"
#include "language_server/protocol/json.hpp"

namespace kelp::input::quill::language_server {

/// Returns what a client can do, from the "capabilities" that it names. What it does not name, or
/// names in another form, it cannot.
ClientAbilities abilities_of(const Json& capabilities);

/// Returns the encoding of positions for a client: UTF-8 if it offers that, since it is the one of
/// the texts here, else the first one that it offers, else UTF-16, which every client knows.
PositionEncoding chosen_encoding(const Json& capabilities);

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_LANGUAGE_SERVER_SESSION_CLIENT_ABILITIES_HPP
