#include <charconv>

#include "writer/finite_text.hpp"
#include "writer/floating_point_text.hpp"

namespace kelp::input::quill {

char* write_finite_fixed(char* out, double value, int decimals) {
  return std::to_chars(out, out + longest_fixed(decimals), value, std::chars_format::fixed,
                       decimals)
      .ptr;
}

char* write_finite_general(char* out, double value, int digits) {
  return std::to_chars(out, out + longest_general(digits), value, std::chars_format::general,
                       digits)
      .ptr;
}

char* write_finite_shortest(char* out, double value) {
  return std::to_chars(out, out + longest_shortest, value).ptr;
}

char* write_finite_shortest_fixed(char* out, double value) {
  return std::to_chars(out, out + longest_shortest_fixed, value, std::chars_format::fixed).ptr;
}

char* write_finite_shortest_scientific(char* out, double value) {
  return std::to_chars(out, out + longest_shortest, value, std::chars_format::scientific).ptr;
}

}  // namespace kelp::input::quill
