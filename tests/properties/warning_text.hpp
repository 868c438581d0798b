#ifndef KELP_INPUT_QUILL_TESTS_PROPERTIES_WARNING_TEXT_HPP
#define KELP_INPUT_QUILL_TESTS_PROPERTIES_WARNING_TEXT_HPP

#include <cstdint>
#include <string>

namespace kelp::input::quill {

/// The parts of a warning: "Line 12: message". For any other text, `is_of_a_line` is false and the
/// message is the whole text.
struct SplitWarning {
  bool is_of_a_line = false;
  std::uint64_t line = 0;
  std::string message;
};

SplitWarning split_warning(const std::string& warning);

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_TESTS_PROPERTIES_WARNING_TEXT_HPP
