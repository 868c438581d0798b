#ifndef KELP_INPUT_QUILL_TOOL_RUN_HPP
#define KELP_INPUT_QUILL_TOOL_RUN_HPP

#include <ostream>
#include <string>
#include <vector>

#include "quill-inp/process/standard_streams.hpp"

namespace kelp::input::quill::tool {

/// Runs the program with these arguments, without its own name, and returns its exit code: 0 when
/// it did what was asked, 1 when the answer is no, 2 for trouble. Data goes to standard output,
/// everything else to standard error. Data that could not be written is trouble, too. Nothing is
/// thrown.
int run(const std::vector<std::string>& arguments, const StandardStreams& streams);

/// Reports that memory ran out, without needing any memory, and returns the exit code for that.
int report_out_of_memory(std::ostream& err);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_RUN_HPP
