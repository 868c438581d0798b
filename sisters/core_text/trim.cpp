#include "ascii.hpp"
#include "kelp/core/text.hpp"

namespace kelp::core::text {

std::string trim(std::string_view text) {
  while (!text.empty() && is_space(text.front())) text.remove_prefix(1);
  while (!text.empty() && is_space(text.back())) text.remove_suffix(1);
  return std::string(text);
}

}  // namespace kelp::core::text
