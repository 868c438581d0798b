#ifndef KELP_CORE_TEXT_HPP
#define KELP_CORE_TEXT_HPP

// Text functions that give the same answer in every locale: trimming, case folding, splitting and
// number parsing of byte strings.
//
//     for (const std::string& line : split_lines("He 0.0\nNe 1.5\n")) {
//       const std::vector<std::string> words = split_whitespace(line);
//       double x = 0.0;
//       if (words.size() == 2 && try_parse_double(words[1], x)) std::cout << x << '\n';
//     }
//
// White space is the blank, "\t", "\n", "\v", "\f" and "\r". Every other byte, NUL and those above
// 0x7F included, is an ordinary character, so UTF-8 text is not damaged. No text makes a function
// throw; only running out of memory for a result does. The time that a function takes is linear in
// the length of its text. No function keeps any state; any number of threads may call them at once.

#include <string>
#include <string_view>
#include <vector>

namespace kelp::core::text {

/// Returns `text` without the white space at its two ends. White space inside it stays. A text that
/// is only white space gives the empty string.
std::string trim(std::string_view text);

/// Returns `text` with the letters "A" to "Z" in lower case and every other byte as it is.
std::string to_lower_copy(std::string_view text);

/// Returns `text` with the letters "a" to "z" in upper case and every other byte as it is.
std::string to_upper_copy(std::string_view text);

/// Returns the longest runs of bytes that are not white space, in order. None of them is empty; a
/// text without such a byte gives no words.
std::vector<std::string> split_whitespace(std::string_view text);

/// Returns the lines of `text`, in order and without their terminators. "\n" ends a line, and one
/// "\r" right before it belongs to the terminator; any other "\r" is part of its line. Each line
/// gives one element, empty ones included. No line begins after a terminator at the very end: ""
/// has no lines, "a" and "a\n" have one each, and "\n" has one, which is empty.
std::vector<std::string> split_lines(std::string_view text);

/// Stores the number that `token` spells in `value` and returns true, or returns false and leaves
/// `value` as it was. A number is an optional "+" or "-" and one or more decimal digits, the whole
/// token, within the range of `int`. Leading zeros are allowed; white space is not.
bool try_parse_int(std::string_view token, int& value);

/// Stores the number that `token` spells in `value` and returns true, or returns false and leaves
/// `value` as it was. A number is an optional "+" or "-", then one or more decimal digits with at
/// most one "." before, among or after them, then an optional exponent: "e", "E", or "d", "D" as
/// Fortran writes it, an optional sign and one or more digits. "inf", "infinity" and "nan", in any
/// letter case, are numbers too, with or without a sign. The number is the whole token; there is no
/// white space in it and no hexadecimal form.
///
/// The value is the double nearest to the number, of two equally near ones the even one, as long as
/// the floating-point environment rounds to nearest. Zero and NaN keep their sign too. A number may
/// have any count of digits. A number too large for a double gives false; one too small for it
/// gives the nearest subnormal or zero, and true.
bool try_parse_double(std::string_view token, double& value);

}  // namespace kelp::core::text

#endif  // KELP_CORE_TEXT_HPP
