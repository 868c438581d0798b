#ifndef KELP_INPUT_QUILL_TOOL_PROCESS_STANDARD_STREAMS_HPP
#define KELP_INPUT_QUILL_TOOL_PROCESS_STANDARD_STREAMS_HPP

#include <istream>
#include <optional>
#include <ostream>

namespace kelp::input::quill::tool {

/// The streams of one call of the program, and the descriptors of the files that they are connected
/// to; none for a stream in memory.
struct StandardStreams {
  std::istream& in;
  std::ostream& out;
  std::ostream& err;
  std::optional<int> in_file = std::nullopt;
  std::optional<int> out_file = std::nullopt;
  std::optional<int> err_file = std::nullopt;
};

/// Returns the streams of the process. To be called once, before anything is opened: it makes
/// failures to write (a closed pipe, a file that may not grow) come back as errors, which the exit
/// code then tells, instead of ending the process. It also takes the descriptors 0, 1 and 2 where
/// they are free: in a process that was started without one of them, the next file that is opened,
/// an input perhaps, would get its number and with it the messages. Writing to standard output
/// fails then, as it should.
StandardStreams take_standard_streams();

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_PROCESS_STANDARD_STREAMS_HPP
