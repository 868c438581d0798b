#ifndef KELP_INPUT_QUILL_TESTS_TOOLS_QUILL_INP_SUPPORT_METERED_CALL_HPP
#define KELP_INPUT_QUILL_TESTS_TOOLS_QUILL_INP_SUPPORT_METERED_CALL_HPP

#include <cstdint>
#include <string>
#include <vector>

#include "support/failing_allocator.hpp"

namespace kelp::input::quill::tool {

/// What came of a call, and the numbers of its allocations, before the first file and in all.
struct MeteredCall {
  int code = -1;
  std::string out = {};
  std::string err = {};
  std::uint64_t allocations_before = 0;
  std::uint64_t allocations = 0;
};

/// Runs the program in this process, with one of its allocations failing, and perhaps all that
/// follow; with 0, none.
MeteredCall run_failing(const std::vector<std::string>& arguments, std::string input,
                        std::uint64_t failing, Shortage shortage = Shortage::Short);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TESTS_TOOLS_QUILL_INP_SUPPORT_METERED_CALL_HPP
