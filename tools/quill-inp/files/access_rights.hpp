#ifndef KELP_INPUT_QUILL_TOOL_FILES_ACCESS_RIGHTS_HPP
#define KELP_INPUT_QUILL_TOOL_FILES_ACCESS_RIGHTS_HPP

#include <sys/stat.h>

#include <string>
#include <vector>

namespace kelp::input::quill::tool {

/// Gives the new file `to` the owner, group, access list and permission bits of `from`, whose state
/// is `state`; both are open files. What may not be given is left out, and the permission bits are
/// then narrowed so that nobody can do more than before. Returns what was left out, one sentence
/// each. Throws Trouble when not even narrower permission bits can be set.
std::vector<std::string> copy_access_rights(int from, const struct stat& state, int to);

/// Returns the permission bits for a file whose owner or group could not be kept. A new group, and
/// the members of the old one, get what everybody and the old group had in common; without the old
/// owner the rest gets no more than the owner had. Bits that run a program as somebody go with that
/// somebody.
mode_t narrowed_mode(mode_t mode, bool keeps_owner, bool keeps_group);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_FILES_ACCESS_RIGHTS_HPP
