#ifndef KELP_INPUT_QUILL_TOOL_SESSION_INPUT_SOURCE_HPP
#define KELP_INPUT_QUILL_TOOL_SESSION_INPUT_SOURCE_HPP

#include <sys/stat.h>

#include <optional>
#include <string>

#include "quill-inp/session/session.hpp"

namespace kelp::input::quill::tool {

/// The file that a text was read from, with every symbolic link on the way resolved, and its state
/// before it was read.
struct FileOrigin {
  std::string folder = {};
  std::string name = {};
  struct stat state = {};
};

/// A text and where it comes from: the argument it was named by, the name to show for it, and the
/// file, unless it was standard input.
struct InputSource {
  std::string argument = {};
  std::string name = {};
  std::string content = {};
  std::optional<FileOrigin> origin = std::nullopt;
};

/// Reads the file that `argument` names, or standard input for "-". Throws Trouble when there is no
/// such file, when a link leads nowhere, when it is not a regular file, when it is larger than the
/// session accepts, when it changes while it is read, when it is where standard output goes, and
/// when it cannot be read.
InputSource read_input(Session& session, const std::string& argument);

/// Throws Trouble when `argument` names the file that standard output goes into: the shell may have
/// emptied it, and what is printed would end up in what is read. Says nothing of files that are not
/// there.
void require_apart_from_output(Session& session, const std::string& argument);

/// Returns whether two states are those of the same file with, as far as the system tells, the same
/// content: device, inode, size, and the times of the last change of content and of state.
bool is_same_state(const struct stat& left, const struct stat& right);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_SESSION_INPUT_SOURCE_HPP
