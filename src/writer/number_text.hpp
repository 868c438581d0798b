#ifndef KELP_INPUT_QUILL_WRITER_NUMBER_TEXT_HPP
#define KELP_INPUT_QUILL_WRITER_NUMBER_TEXT_HPP

#include <cstddef>
#include <cstdint>
#include <string>

// The three spellings of numbers in a QUILL input. No locale has any influence on them.

namespace kelp::input::quill {

/// The width of a coordinate's field. Longer numbers are written whole.
inline constexpr std::size_t coordinate_width = 14;

/// Appends plain decimal digits, with "-" for negative numbers.
void append_integer(std::string& out, std::int32_t number);

/// Appends what printf("%14.6f") prints.
void append_coordinate(std::string& out, double coordinate);

/// Writes what printf("%14.6f") prints into the 14 characters at `field` and returns true, for
/// numbers whose text is known without a search: nearly all below a million. Otherwise writes
/// nothing and returns false.
bool write_coordinate(char* field, double coordinate);

/// Appends what printf("%g") prints.
void append_scan_value(std::string& out, double value);

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_WRITER_NUMBER_TEXT_HPP
