#ifndef KELP_INPUT_QUILL_TESTS_PROPERTIES_WARNING_TEXT_HPP
#define KELP_INPUT_QUILL_TESTS_PROPERTIES_WARNING_TEXT_HPP

#include <cstdint>
#include <string>

namespace kelp::input::quill {

/// A warning taken apart: "Line 12: message". Of any other text, `is_of_a_line` is false and the
/// message is the whole.
struct SplitWarning {
  bool is_of_a_line = false;
  std::uint64_t line = 0;
  std::string message;
};

SplitWarning split_warning(const std::string& warning);

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_TESTS_PROPERTIES_WARNING_TEXT_HPP
