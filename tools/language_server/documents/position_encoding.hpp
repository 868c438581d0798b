#ifndef KELP_INPUT_QUILL_LANGUAGE_SERVER_DOCUMENTS_POSITION_ENCODING_HPP
#define KELP_INPUT_QUILL_LANGUAGE_SERVER_DOCUMENTS_POSITION_ENCODING_HPP

#include <cstddef>
#include <optional>
#include <string_view>

namespace kelp::input::quill::language_server {

/// What the characters of a position count: bytes, halves of surrogate pairs, or code points.
enum class PositionEncoding { Utf8, Utf16, Utf32 };

/// The name of an encoding in the protocol: "utf-8", "utf-16" or "utf-32".
std::string_view name_of(PositionEncoding encoding);

/// Returns how many units a UTF-8 text has.
std::size_t count_units(std::string_view text, PositionEncoding encoding);

/// Returns how many bytes the first `units` units of a UTF-8 text take, and all of them for a text
/// with fewer units. Returns nothing if the last unit is in the middle of a character.
std::optional<std::size_t> bytes_of_units(std::string_view text, std::size_t units,
                                          PositionEncoding encoding);

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_LANGUAGE_SERVER_DOCUMENTS_POSITION_ENCODING_HPP
