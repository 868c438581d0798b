#ifndef KELP_INPUT_QUILL_TOOL_PROCESS_STANDARD_STREAMS_HPP
#define KELP_INPUT_QUILL_TOOL_PROCESS_STANDARD_STREAMS_HPP

namespace kelp::input::quill::tool {

/// Makes failures to write come back as errors, which the exit code then tells, instead of ending
/// the process: a closed pipe, a file that may not grow. And sees to it that the descriptors 0, 1
/// and 2 are taken: in a process that was started without one of them, the next file that is
/// opened, an input perhaps, would get its number and with it the messages. Writing to standard
/// output fails then, as it should. To be called once, before anything is opened.
void prepare_standard_streams();

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_PROCESS_STANDARD_STREAMS_HPP
