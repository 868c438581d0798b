#include "kelp/chem/elements.hpp"

namespace kelp::chem::elements {

namespace {

constexpr bool is_in_range(char c, char first, char last) { return first <= c && c <= last; }

constexpr char case_distance = 'a' - 'A';

}  // namespace

std::string normalize_symbol(std::string_view symbol) {
  std::string normal(symbol);
  for (char& c : normal) {
    if (is_in_range(c, 'A', 'Z')) c = static_cast<char>(c + case_distance);
  }
  if (!normal.empty() && is_in_range(normal.front(), 'a', 'z')) {
    normal.front() = static_cast<char>(normal.front() - case_distance);
  }
  return normal;
}

}  // namespace kelp::chem::elements
