#ifndef KELP_INPUT_QUILL_LOSSLESS_FILES_ACCESS_RIGHTS_HPP
#define KELP_INPUT_QUILL_LOSSLESS_FILES_ACCESS_RIGHTS_HPP

#include <sys/stat.h>

#include <vector>

#include "kelp/input/quill/lossless/file_replacement.hpp"

namespace kelp::input::quill::lossless {

/// Gives the new file `to` the owner, group, access list and permission bits of `from`, whose state
/// is `state`; both are open files. What the system does not allow is left out, and the permission
/// bits are then reduced so that nobody can do more than before. Returns what was left out.
/// Throws FileError when not even reduced permission bits can be set.
std::vector<LostAttribute> copy_access_rights(int from, const struct stat& state, int to);

/// Gives the new file the setuid, setgid and sticky bits of a file with the state `wanted`, as far
/// as its owner and group are the same and the system allows it. It has to hold its content
/// already: writing takes these bits away. Returns what was left out, in the same way.
std::vector<LostAttribute> restore_special_bits(const struct stat& wanted, int to);

/// Returns the permission bits for a file whose owner or group could not be kept. Without the old
/// group, the group and all others get only rights that both had. Without the old owner, the group
/// and all others get only rights that the owner had, too. The set-user-ID bit is kept only with
/// the owner, and the set-group-ID bit only with the group.
mode_t narrowed_mode(mode_t mode, bool keeps_owner, bool keeps_group);

}  // namespace kelp::input::quill::lossless

#endif  // KELP_INPUT_QUILL_LOSSLESS_FILES_ACCESS_RIGHTS_HPP
