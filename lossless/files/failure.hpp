#ifndef KELP_INPUT_QUILL_LOSSLESS_FILES_FAILURE_HPP
#define KELP_INPUT_QUILL_LOSSLESS_FILES_FAILURE_HPP

#include <string>

#include "kelp/input/quill/lossless/file_error.hpp"

namespace kelp::input::quill::lossless {

/// Throws the error of a failure, with an errno if a call of the system failed. The path is added
/// where the interface is left.
[[noreturn]] void fail(FileFailure::Kind kind, int system_code = 0);

/// Returns the type of a file that is not a regular one. `mode` is from its state.
FileType type_of(unsigned mode);

/// Returns why a path could not be opened with this errno. Where the path leads to something else
/// than a file, the reason is that.
FileFailure find_open_failure(const std::string& path, int error);

}  // namespace kelp::input::quill::lossless

#endif  // KELP_INPUT_QUILL_LOSSLESS_FILES_FAILURE_HPP
