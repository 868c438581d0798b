#ifndef KELP_INPUT_QUILL_LANGUAGE_SERVER_PROTOCOL_ADDRESS_HPP
#define KELP_INPUT_QUILL_LANGUAGE_SERVER_PROTOCOL_ADDRESS_HPP

#include <optional>
#include <string>
#include <string_view>

namespace kelp::input::quill::language_server {

/// Returns the address of a file that a document refers to by a path, which is relative to the
/// folder of the document or begins with "/". The segments "." and ".." of the path are resolved.
/// Returns nothing for a document whose address has no folder, such as one that was never saved.
std::optional<std::string> address_of_reference(std::string_view document, std::string_view path);

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_LANGUAGE_SERVER_PROTOCOL_ADDRESS_HPP
