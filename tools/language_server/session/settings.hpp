#ifndef KELP_INPUT_QUILL_LANGUAGE_SERVER_SESSION_SETTINGS_HPP
#define KELP_INPUT_QUILL_LANGUAGE_SERVER_SESSION_SETTINGS_HPP

#include "language_server/features/feature.hpp"
#include "language_server/protocol/json.hpp"

namespace kelp::input::quill::language_server {

/// The section of a client's settings that is meant for this server.
inline constexpr const char* settings_section = "quillInp";

/// Returns the settings of such a section:
///
///   {"inlayHints": {"atomNumbers": true}, "pages": "https://host/{code}.html"}
///
/// What is not in it, or is of another type, is as it is without settings.
Settings settings_of(const Json& section);

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_LANGUAGE_SERVER_SESSION_SETTINGS_HPP
