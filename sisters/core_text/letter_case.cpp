#include "ascii.hpp"
#include "kelp/core/text.hpp"

namespace kelp::core::text {

std::string to_lower_copy(std::string_view text) {
  std::string lower(text);
  for (char& c : lower) c = to_lower(c);
  return lower;
}

std::string to_upper_copy(std::string_view text) {
  std::string upper(text);
  for (char& c : upper) c = to_upper(c);
  return upper;
}

}  // namespace kelp::core::text
