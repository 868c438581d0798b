#ifndef KELP_INPUT_QUILL_TESTS_TOOLS_PROPERTIES_SERVING_HPP
#define KELP_INPUT_QUILL_TESTS_TOOLS_PROPERTIES_SERVING_HPP

#include <string_view>

// What is true for the language server, whatever a client sends.

namespace kelp::input::quill::language_server {

/// Whatever the bytes of a connection are, the server ends with an exit code of the protocol, and
/// what it has sent is messages of the protocol. Throws a Violation.
void check_connection(std::string_view bytes);

/// The same for a session in which a text was opened, and each line of the text is a message after
/// that. Each request gets one answer.
void check_messages(std::string_view lines);

/// After edits that the bytes describe, in every encoding of positions, the server has the text
/// that the client has. Throws a Violation.
void check_edits(std::string_view bytes);

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_TESTS_TOOLS_PROPERTIES_SERVING_HPP
