#ifndef KELP_INPUT_QUILL_LOSSLESS_EDITING_PHRASES_HPP
#define KELP_INPUT_QUILL_LOSSLESS_EDITING_PHRASES_HPP

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// Numbers and quoted texts in the form that messages use.

namespace kelp::input::quill::lossless {

/// Returns the text between apostrophes.
std::string in_apostrophes(std::string_view text);

/// Returns the shortest decimal text that reads back as exactly this number.
std::string shortest_text(double number);

/// Returns the number with two significant digits.
std::string rounded_text(double number);

/// Returns the numbers with single blanks between them.
std::string joined(const std::vector<std::int32_t>& numbers);

}  // namespace kelp::input::quill::lossless

#endif  // KELP_INPUT_QUILL_LOSSLESS_EDITING_PHRASES_HPP
