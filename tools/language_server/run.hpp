#ifndef KELP_INPUT_QUILL_LANGUAGE_SERVER_RUN_HPP
#define KELP_INPUT_QUILL_LANGUAGE_SERVER_RUN_HPP

#include <istream>
#include <ostream>

#include "language_server/session/server_state.hpp"

namespace kelp::input::quill::language_server {

/// Serves one client: reads its messages from `in` and writes those for it to `out`, until it says
/// "exit" or a stream ends. Nothing but messages is written. Returns the exit code that the
/// protocol asks for: 0 if the client said "shutdown" before, and 1 otherwise.
int run(std::istream& in, std::ostream& out, const ServerOptions& options);

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_LANGUAGE_SERVER_RUN_HPP
