#ifndef KELP_INPUT_QUILL_READER_DIAGNOSTICS_HPP
#define KELP_INPUT_QUILL_READER_DIAGNOSTICS_HPP

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kelp::input::quill {

/// What the reader says about a line. Every message text of the reader is in this file.
namespace message {
inline constexpr std::string_view empty_header_command = "empty QUILL header command";
inline constexpr std::string_view missing_parenthesis = "missing ')' in QUILL header command";
inline constexpr std::string_view trailing_text =
    "ignored trailing text after QUILL header command";
inline constexpr std::string_view nameless_command = "QUILL header command has no name";
inline constexpr std::string_view xyz_without_path = "XYZ reference has no file path";
inline constexpr std::string_view trajectory_without_path = "XYZTRAJ reference has no file path";
inline constexpr std::string_view unrecognized_post_line =
    "ignored unrecognized QUILL post-processing line";

/// The one diagnostic that is not about a line.
inline constexpr std::string_view no_coordinates = "No QUILL coordinate section found";
}  // namespace message

/// Returns "Line N: " and the message; lines count from 1.
std::string line_diagnostic(std::uint64_t line_number, std::string_view message);

/// A diagnostic of the reader, taken apart: the line that it is about, if it is about one, and the
/// message, a view of the diagnostic.
struct DiagnosticParts {
  std::optional<std::uint64_t> line = std::nullopt;
  std::string_view message = {};
};

/// Takes apart a diagnostic, which line_diagnostic() made or which does not name a line.
DiagnosticParts split_diagnostic(std::string_view diagnostic);

/// Returns the diagnostic for an atom whose normalised symbol is not that of an element.
std::string unknown_element_diagnostic(std::uint64_t line_number, std::string_view symbol);

/// Returns the error for a file that cannot be opened or read.
std::string open_failure(std::string_view path);

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_READER_DIAGNOSTICS_HPP
