#ifndef KELP_INPUT_QUILL_TOOL_FILES_FILE_ADVICE_HPP
#define KELP_INPUT_QUILL_TOOL_FILES_FILE_ADVICE_HPP

#include <string>

#include "kelp/input/quill/lossless/file_error.hpp"

namespace kelp::input::quill::tool {

/// What a file is opened for: a pipe can be read, but no other file can be put in its place.
enum class Purpose { Reading, Replacing };

/// Returns why a file could not be read or written, as words() of the library does, and what the
/// user of this program can do about it.
std::string advice(const lossless::FileFailure& failure, Purpose purpose);

/// Throws that as Trouble, for a path that leads to a folder as FolderTrouble.
[[noreturn]] void throw_trouble(const lossless::FileFailure& failure, Purpose purpose);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_FILES_FILE_ADVICE_HPP
