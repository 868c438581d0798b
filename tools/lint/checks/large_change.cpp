#include <algorithm>

#include "lint/checks/checks.hpp"
#include "lint/checks/lost_digits.hpp"

namespace kelp::input::quill::lint {

Findings check_large_change(const Source& source) {
  std::vector<RoundedNumber> numbers = rounded_numbers(source);
  numbers.erase(std::remove_if(numbers.begin(), numbers.end(),
                               [&](const RoundedNumber& number) {
                                 return number.change <= source.options().max_change;
                               }),
                numbers.end());
  return find_lost_digits(source, numbers);
}

}  // namespace kelp::input::quill::lint
