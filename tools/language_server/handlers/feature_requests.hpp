#ifndef KELP_INPUT_QUILL_LANGUAGE_SERVER_HANDLERS_FEATURE_REQUESTS_HPP
#define KELP_INPUT_QUILL_LANGUAGE_SERVER_HANDLERS_FEATURE_REQUESTS_HPP

#include "language_server/features/feature.hpp"
#include "language_server/session/server_state.hpp"

namespace kelp::input::quill::language_server {

/// Returns the result of a feature for the text, and the place in it, that the parameters of a
/// request name. Throws ResponseError.
Json answer_feature(ServerState& state, const Feature& feature, const Json& params);

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_LANGUAGE_SERVER_HANDLERS_FEATURE_REQUESTS_HPP
