// Any bytes as a connection to the language server, as messages, and as edits of a text.

#include <cstddef>
#include <cstdint>

#include "fuzz/target.hpp"
#include "tools/properties/serving.hpp"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  namespace language_server = kelp::input::quill::language_server;
  const std::string_view bytes = kelp::input::quill::as_text(data, size);
  language_server::check_connection(bytes);
  language_server::check_messages(bytes);
  language_server::check_edits(bytes);
  return 0;
}
