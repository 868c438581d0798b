#include "language_server/framing/message_writer.hpp"

#include <string>

namespace kelp::input::quill::language_server {

void write_message(std::ostream& out, std::string_view content) {
  const std::string header = "Content-Length: " + std::to_string(content.size()) + "\r\n\r\n";
  out.write(header.data(), static_cast<std::streamsize>(header.size()));
  out.write(content.data(), static_cast<std::streamsize>(content.size()));
  out.flush();
}

}  // namespace kelp::input::quill::language_server
