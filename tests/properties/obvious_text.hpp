#ifndef KELP_INPUT_QUILL_TESTS_PROPERTIES_OBVIOUS_TEXT_HPP
#define KELP_INPUT_QUILL_TESTS_PROPERTIES_OBVIOUS_TEXT_HPP

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The text functions once more, written so that they are obviously right: one byte at a time, with
// numbers read by the C library. They are right in the "C" locale only.

namespace kelp::input::quill::obvious {

/// Blank, "\t", "\n", "\v", "\f", "\r".
bool is_blank(char c);
bool is_letter(char c);
bool is_digit(char c);

std::string trim(std::string_view text);
std::string lower(std::string_view text);
std::string upper(std::string_view text);
std::vector<std::string> words(std::string_view text);
std::vector<std::string> lines(std::string_view text);

/// The text after the first word and the blanks around it.
std::string rest_after_first_word(std::string_view text);

std::optional<int> integer(std::string_view token);
std::optional<double> number(std::string_view token);

}  // namespace kelp::input::quill::obvious

#endif  // KELP_INPUT_QUILL_TESTS_PROPERTIES_OBVIOUS_TEXT_HPP
