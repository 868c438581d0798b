#ifndef KELP_INPUT_QUILL_TESTS_SCALE_EXPECT_LINEAR_HPP
#define KELP_INPUT_QUILL_TESTS_SCALE_EXPECT_LINEAR_HPP

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>

#include "scale/measuring.hpp"

namespace kelp::input::quill {

/// What twice the size may cost. Linear work takes twice as much, and a little more where it no
/// longer fits a cache; quadratic work takes four times as much.
inline constexpr double most_for_twice = 2.4;

/// The least that something cost in several attempts: other programs only ever add to it.
inline void keep_least(Cost& least, const Cost& cost) {
  least.seconds = std::min(least.seconds, cost.seconds);
  least.peak_bytes = std::min(least.peak_bytes, cost.peak_bytes);
  least.allocations = std::min(least.allocations, cost.allocations);
}

inline bool is_linear(const Cost& once, const Cost& twice) {
  constexpr double few_allocations = 50;
  return twice.seconds <= most_for_twice * once.seconds &&
         static_cast<double>(twice.peak_bytes) <=
             most_for_twice * static_cast<double>(once.peak_bytes) &&
         static_cast<double>(twice.allocations) <=
             most_for_twice * static_cast<double>(once.allocations) + few_allocations;
}

/// Measures `prepare(size)` and `prepare(2 * size)`, each of which gives a function that is run
/// once, until the least of their costs are in proportion, or it is clear that they are not.
template <typename Prepare>
void expect_linear(std::size_t size, const Prepare& prepare) {
  constexpr int attempts = 12;
  Cost once = cost_of(prepare(size));
  Cost twice = cost_of(prepare(2 * size));
  for (int attempt = 1; attempt < attempts && !is_linear(once, twice); ++attempt) {
    keep_least(once, cost_of(prepare(size)));
    keep_least(twice, cost_of(prepare(2 * size)));
  }
  EXPECT_TRUE(is_linear(once, twice))
      << "for " << size << ": " << once.seconds << " s, " << once.peak_bytes << " bytes, "
      << once.allocations << " allocations; for twice as much: " << twice.seconds << " s, "
      << twice.peak_bytes << " bytes, " << twice.allocations << " allocations";
}

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_TESTS_SCALE_EXPECT_LINEAR_HPP
