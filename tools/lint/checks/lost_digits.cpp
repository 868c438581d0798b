#include "lint/checks/lost_digits.hpp"

#include <algorithm>

namespace kelp::input::quill::lint {

Findings find_lost_digits(const Source& source, const std::vector<RoundedNumber>& numbers) {
  if (numbers.empty()) return {};
  const auto largest = std::max_element(numbers.begin(), numbers.end(),
                                        [](const RoundedNumber& left, const RoundedNumber& right) {
                                          return left.change < right.change;
                                        });
  return {{range_of(source, numbers.front()),
           {count_fact("count", numbers.size()), {"change", largest->change}}}};
}

}  // namespace kelp::input::quill::lint
