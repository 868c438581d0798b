#ifndef KELP_INPUT_QUILL_TESTS_PROPERTIES_HOLDS_HPP
#define KELP_INPUT_QUILL_TESTS_PROPERTIES_HOLDS_HPP

#include <gtest/gtest.h>

#include "properties/violation.hpp"

namespace kelp::input::quill {

/// Returns whether the check comes to its end, and what it says when it does not.
template <typename Check>
testing::AssertionResult holds(Check check) {
  try {
    check();
    return testing::AssertionSuccess();
  } catch (const Violation& violation) {
    return testing::AssertionFailure() << violation.what();
  }
}

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_TESTS_PROPERTIES_HOLDS_HPP
