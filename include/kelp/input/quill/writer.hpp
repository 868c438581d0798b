#ifndef KELP_INPUT_QUILL_WRITER_HPP
#define KELP_INPUT_QUILL_WRITER_HPP

/// @file
/// The canonical text of the parts of a QUILL input; QuillInput::to_string() returns the text of a
/// whole input.
///
///     to_string(HeaderCommand{"model", HeaderCommandKind::Assignment, "m1"});  // "#model = m1"
///     to_string(PostCommand{PostCommandKind::Scan, {1, 2}, 1.5, 10});          // "S 1 2 1.5 10"
///
/// Stored strings are written byte for byte: nothing is quoted, escaped or checked, and a kind
/// outside its enumeration adds no text. The locale has no influence. The functions only read their
/// argument and may run in several threads at once.

#include <string>

#include "kelp/input/quill/document.hpp"
#include "kelp/input/quill/export.hpp"

namespace kelp::input::quill {

/// Returns one header line without a line end, "#" included.
[[nodiscard]] KELP_QUILL_INP_EXPORT std::string to_string(const HeaderCommand& command);

/// Returns one post-processing line without a line end. A scan's value has up to six significant
/// digits, as printf("%g") writes it. All stored atom numbers are written, however many there are.
[[nodiscard]] KELP_QUILL_INP_EXPORT std::string to_string(const PostCommand& command);

/// Returns the coordinate section, every line ending in "\n". Coordinates have six decimals, as
/// printf("%.6f") writes them, right-justified in 14 columns; a longer number is not cut, and no
/// blank separates it from the number before it.
[[nodiscard]] KELP_QUILL_INP_EXPORT std::string to_string(const GeometryBlock& geometry);

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_WRITER_HPP
