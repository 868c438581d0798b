#ifndef KELP_INPUT_QUILL_WRITER_FINITE_TEXT_HPP
#define KELP_INPUT_QUILL_WRITER_FINITE_TEXT_HPP

// Texts of finite numbers, in whatever way the standard library offers: finite_text_charconv.cpp
// where it has std::to_chars for double, finite_text_stream.cpp elsewhere. The build decides; see
// cmake/number_conversions.cmake. For the meaning of the functions see floating_point_text.hpp.

namespace kelp::input::quill {

char* write_finite_fixed(char* out, double value, int decimals);
char* write_finite_general(char* out, double value, int digits);
char* write_finite_shortest(char* out, double value);
char* write_finite_shortest_fixed(char* out, double value);
char* write_finite_shortest_scientific(char* out, double value);

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_WRITER_FINITE_TEXT_HPP
