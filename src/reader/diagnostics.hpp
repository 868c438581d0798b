#ifndef KELP_INPUT_QUILL_READER_DIAGNOSTICS_HPP
#define KELP_INPUT_QUILL_READER_DIAGNOSTICS_HPP

#include <cstdint>
#include <string>
#include <string_view>

namespace kelp::input::quill {

/// What the reader says of a line. Every message text of the reader stands in this file.
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

/// The one diagnostic that concerns no line.
inline constexpr std::string_view no_coordinates = "No QUILL coordinate section found";
}  // namespace message

/// Returns "Line N: " and the message; lines count from 1.
std::string line_diagnostic(std::uint64_t line_number, std::string_view message);

/// Returns the diagnostic for an atom whose normalised symbol is no element's.
std::string unknown_element_diagnostic(std::uint64_t line_number, std::string_view symbol);

/// Returns the error for a file that cannot be opened or read.
std::string open_failure(std::string_view path);

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_READER_DIAGNOSTICS_HPP
