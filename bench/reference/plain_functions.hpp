#ifndef KELP_INPUT_QUILL_BENCH_REFERENCE_PLAIN_FUNCTIONS_HPP
#define KELP_INPUT_QUILL_BENCH_REFERENCE_PLAIN_FUNCTIONS_HPP

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The text and element functions as a good programmer writes them without optimising further: one
// pass over the characters, room reserved, std::from_chars for numbers, a table for the elements.
// They promise what the functions of the same names in the sister libraries promise, and they are a
// separate shared library, so that a call costs the same.

namespace kelp::input::quill::bench::plain {

std::string trim(std::string_view text);
std::string to_lower_copy(std::string_view text);
std::string to_upper_copy(std::string_view text);
std::vector<std::string> split_whitespace(std::string_view text);
std::vector<std::string> split_lines(std::string_view text);
bool try_parse_int(std::string_view token, int& value);
bool try_parse_double(std::string_view token, double& value);
std::string normalize_symbol(std::string_view symbol);
std::optional<int> atomic_number_from_symbol(std::string_view symbol);

}  // namespace kelp::input::quill::bench::plain

#endif  // KELP_INPUT_QUILL_BENCH_REFERENCE_PLAIN_FUNCTIONS_HPP
