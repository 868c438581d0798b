#include "editing/number_distance.hpp"

#include <cmath>
#include <limits>

namespace kelp::input::quill::lossless {

bool is_equal_number(double left, double right) {
  if (std::signbit(left) != std::signbit(right)) return false;
  return left == right || (std::isnan(left) && std::isnan(right));
}

double distance(double left, double right) {
  if (!std::isfinite(left) || !std::isfinite(right)) return std::numeric_limits<double>::infinity();
  return std::fabs(left - right);
}

}  // namespace kelp::input::quill::lossless
