#ifndef KELP_INPUT_QUILL_TOOL_PROCESS_EXIT_CODE_HPP
#define KELP_INPUT_QUILL_TOOL_PROCESS_EXIT_CODE_HPP

namespace kelp::input::quill::tool {

/// How a call ended, for every verb. The values never change, since scripts rely on them.
enum class ExitCode : int {
  Done = 0,     // done, nothing to report
  No = 1,       // the answer is no: differs, would change, no match
  Trouble = 2,  // usage, unreadable, unwritable, refused
};

/// Of several files, the highest code is the result.
constexpr ExitCode worse_of(ExitCode left, ExitCode right) {
  return static_cast<int>(left) < static_cast<int>(right) ? right : left;
}

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_PROCESS_EXIT_CODE_HPP
