#ifndef KELP_INPUT_QUILL_LANGUAGE_SERVER_FRAMING_MESSAGE_WRITER_HPP
#define KELP_INPUT_QUILL_LANGUAGE_SERVER_FRAMING_MESSAGE_WRITER_HPP

#include <ostream>
#include <string_view>

namespace kelp::input::quill::language_server {

/// Writes a message with its header, and passes it on at once. A failure is a state of the stream.
void write_message(std::ostream& out, std::string_view content);

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_LANGUAGE_SERVER_FRAMING_MESSAGE_WRITER_HPP
