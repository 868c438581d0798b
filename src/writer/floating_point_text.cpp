#include "writer/floating_point_text.hpp"

#include <cmath>

#include "writer/finite_text.hpp"

namespace kelp::input::quill {

namespace {

/// Standard libraries differ here: for a NaN with a sign, one has "-nan" and another "-nan(ind)".
char* write_name(char* out, double value) {
  std::string_view name = std::isnan(value) ? "-nan" : "-inf";
  if (!std::signbit(value)) name.remove_prefix(1);
  return out + name.copy(out, name.size());
}

}  // namespace

char* write_fixed(char* out, double value, int decimals) {
  return std::isfinite(value) ? write_finite_fixed(out, value, decimals) : write_name(out, value);
}

char* write_general(char* out, double value, int digits) {
  return std::isfinite(value) ? write_finite_general(out, value, digits) : write_name(out, value);
}

char* write_shortest(char* out, double value) {
  return std::isfinite(value) ? write_finite_shortest(out, value) : write_name(out, value);
}

char* write_shortest_fixed(char* out, double value) {
  return std::isfinite(value) ? write_finite_shortest_fixed(out, value) : write_name(out, value);
}

char* write_shortest_scientific(char* out, double value) {
  return std::isfinite(value) ? write_finite_shortest_scientific(out, value)
                              : write_name(out, value);
}

}  // namespace kelp::input::quill
