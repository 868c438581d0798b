#ifndef KELP_INPUT_QUILL_TESTS_SUPPORT_FAIL_EACH_ALLOCATION_HPP
#define KELP_INPUT_QUILL_TESTS_SUPPORT_FAIL_EACH_ALLOCATION_HPP

#include <gtest/gtest.h>

#include <cstdint>
#include <new>
#include <optional>

#include "support/failing_allocator.hpp"

namespace kelp::input::quill {

/// What came of a call that was to fail in one allocation.
struct Attempt {
  bool got_so_far;  // whether the call made that many allocations at all
  bool threw;
};

/// Lets allocation number `failing` of the call fail. Any exception but std::bad_alloc passes.
template <typename Call>
Attempt attempt(std::uint64_t failing, Call call) {
  const AllocationWindow window(failing);
  try {
    call();
  } catch (const std::bad_alloc&) {
    return {true, true};
  }
  return {window.allocations() >= failing, false};
}

/// Makes a subject and calls `call` on it, with the first, the second, the third ... allocation of
/// the call failing, until there are no more to fail. Each time, passes the subject to
/// `after_failure`, with the number of the allocation, or to `after_success`, and expects that no
/// block is left over once the subject is gone. Returns how many calls threw.
template <typename Make, typename Call, typename AfterFailure, typename AfterSuccess>
std::uint64_t fail_each_allocation(Make make, Call call, AfterFailure after_failure,
                                   AfterSuccess after_success) {
  constexpr std::uint64_t limit = 100'000;
  static const bool frees_failed_copies = failed_copies_are_freed();
  std::uint64_t failures = 0;
  for (std::uint64_t failing = 1; failing <= limit; ++failing) {
    const std::int64_t live_before = live_allocations();
    Attempt result{};
    {
      auto subject = make();
      result = attempt(failing, [&] { call(subject); });
      if (result.threw) {
        after_failure(subject, failing);
      } else {
        after_success(subject);
      }
    }
    if (frees_failed_copies) {
      EXPECT_EQ(live_allocations(), live_before) << "after allocation " << failing << " failed";
    }
    if (!result.got_so_far) return failures;
    failures += result.threw ? 1 : 0;
  }
  ADD_FAILURE() << "the call never came to an end";
  return failures;
}

/// The same for a question that changes nothing: it gives the answer that it gives with plenty of
/// memory, or none.
template <typename Ask>
std::uint64_t expect_whole_answer_or_none(Ask ask) {
  using Answer = decltype(ask());
  const Answer expected = ask();
  return fail_each_allocation(
      [] { return std::optional<Answer>(); },
      [&](std::optional<Answer>& answer) { answer.emplace(ask()); },
      [](const std::optional<Answer>& answer, std::uint64_t failing) {
        EXPECT_FALSE(answer.has_value()) << "allocation " << failing;
      },
      [&](const std::optional<Answer>& answer) { EXPECT_EQ(answer.value(), expected); });
}

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_TESTS_SUPPORT_FAIL_EACH_ALLOCATION_HPP
