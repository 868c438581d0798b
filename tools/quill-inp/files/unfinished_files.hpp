#ifndef KELP_INPUT_QUILL_TOOL_FILES_UNFINISHED_FILES_HPP
#define KELP_INPUT_QUILL_TOOL_FILES_UNFINISHED_FILES_HPP

#include "kelp/input/quill/lossless/unfinished_files.hpp"

namespace kelp::input::quill::tool {

/// Returns the list of the files of this process that are not finished. They are removed on SIGINT,
/// SIGTERM and SIGHUP, which then have their usual effect. The signals are caught during a step and
/// as long as there is such a file: to hold them back is not enough for a file that is created and
/// then listed, since another thread would still get one, and end the program before the name is
/// in the list.
lossless::UnfinishedFiles& unfinished_files();

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_FILES_UNFINISHED_FILES_HPP
