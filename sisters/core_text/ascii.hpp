#ifndef KELP_CORE_TEXT_ASCII_HPP
#define KELP_CORE_TEXT_ASCII_HPP

namespace kelp::core::text {

// The C library's functions with these names depend on the current locale; these do not. The
// differences are converted to unsigned char, so that a byte outside the range has a larger one.

constexpr bool is_in_range(char c, char first, char last) {
  return static_cast<unsigned char>(c - first) <= static_cast<unsigned char>(last - first);
}

constexpr bool is_space(char c) { return c == ' ' || is_in_range(c, '\t', '\r'); }

constexpr bool is_digit(char c) { return is_in_range(c, '0', '9'); }

constexpr char letter_case_bit = 'a' - 'A';

constexpr char to_lower(char c) {
  return static_cast<char>(is_in_range(c, 'A', 'Z') ? c + letter_case_bit : c);
}

constexpr char to_upper(char c) {
  return static_cast<char>(is_in_range(c, 'a', 'z') ? c - letter_case_bit : c);
}

}  // namespace kelp::core::text

#endif  // KELP_CORE_TEXT_ASCII_HPP
