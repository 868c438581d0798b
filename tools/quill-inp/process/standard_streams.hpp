#ifndef KELP_INPUT_QUILL_TOOL_PROCESS_STANDARD_STREAMS_HPP
#define KELP_INPUT_QUILL_TOOL_PROCESS_STANDARD_STREAMS_HPP

#include <istream>
#include <optional>
#include <ostream>

namespace kelp::input::quill::tool {

/// The streams of one call of the program, and the descriptors of the files that they are connected
/// to. A stream in memory has no descriptor.
struct StandardStreams {
  std::istream& in;
  std::ostream& out;
  std::ostream& err;
  std::optional<int> in_file = std::nullopt;
  std::optional<int> out_file = std::nullopt;
  std::optional<int> err_file = std::nullopt;
};

/// Returns the streams of the process. Call it once, before any file is opened. It makes failures
/// to write (a closed pipe, a file at its size limit) return errors, which the exit code then
/// reports, instead of ending the process. It also takes the descriptors 0, 1 and 2 if they are
/// free. In a process that was started without one of them, the next file that is opened, perhaps
/// an input, would get its number, and messages would be written into it. Writing to standard
/// output then fails, as it should.
StandardStreams take_standard_streams();

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_PROCESS_STANDARD_STREAMS_HPP
