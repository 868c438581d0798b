#include "lint/checks/lost_digits.hpp"

#include <algorithm>
#include <optional>

#include "lint/rewriting.hpp"

namespace kelp::input::quill::lint {

void find_lost_digits(const Source& source, const std::function<bool(double change)>& is_wanted,
                      Collector& findings) {
  std::optional<RoundedNumber> first;
  std::size_t count = 0;
  double largest = 0.0;
  for_each_rounded_number(source, [&](const RoundedNumber& number) {
    if (!is_wanted(number.change)) return;
    if (!first) first = number;
    ++count;
    largest = std::max(largest, number.change);
  });
  if (first)
    findings.add({range_of(source, *first), {count_fact("count", count), {"change", largest}}});
}

}  // namespace kelp::input::quill::lint
