#ifndef KELP_INPUT_QUILL_TESTS_TOOLS_SCALE_IN_MEMORY_CALL_HPP
#define KELP_INPUT_QUILL_TESTS_TOOLS_SCALE_IN_MEMORY_CALL_HPP

#include <cstddef>
#include <string>
#include <vector>

namespace kelp::input::quill::tool {

/// How a call of the program ended, and how much it wrote.
struct CallEnd {
  int code = -1;
  std::size_t written = 0;
  std::size_t messages = 0;  // in bytes
};

/// Runs the program in this process, with `input` on its standard input. What it writes is counted
/// and takes no memory.
CallEnd call_in_memory(const std::vector<std::string>& arguments, const std::string& input = {});

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TESTS_TOOLS_SCALE_IN_MEMORY_CALL_HPP
