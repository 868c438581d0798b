#include "files/access_rights.hpp"

#include <unistd.h>

#include <cerrno>

#include "files/failure.hpp"
#include "files/file_descriptor.hpp"

#if defined(__linux__)
#include <sys/xattr.h>
#endif

namespace kelp::input::quill::lossless {

namespace {

using Kind = LostAttribute::Kind;

constexpr mode_t permission_bits = 0777;
constexpr mode_t special_bits = 07000;
constexpr auto examining = FileFailure::Kind::NewNotExamined;

/// Whether the new file has the same owner, group and access list as the old one.
struct Kept {
  bool owner = false;
  bool group = false;
  bool access_list = false;
};

void copy_owner_and_group(const struct stat& wanted, int to, Kept& kept) {
  struct stat state = state_of(to, examining);
  if (state.st_uid != wanted.st_uid || state.st_gid != wanted.st_gid) {
    // Only the superuser can change the owner, but users can set any group that they are in.
    if (fchown(to, wanted.st_uid, wanted.st_gid) != 0)
      static_cast<void>(fchown(to, static_cast<uid_t>(-1), wanted.st_gid) == 0);
    state = state_of(to, examining);
  }
  kept.owner = state.st_uid == wanted.st_uid;
  kept.group = state.st_gid == wanted.st_gid;
}

#if defined(__linux__)
constexpr const char* access_list_attribute = "system.posix_acl_access";

/// Returns whether the new file now has the access list of the old one, or both have none. The new
/// file may have got a list from its folder, which would let others in as soon as the mode is set.
bool copy_access_list(int from, int to) {
  char list[4096];
  const ssize_t size = fgetxattr(from, access_list_attribute, list, sizeof list);
  if (size >= 0)
    return fsetxattr(to, access_list_attribute, list, static_cast<std::size_t>(size), 0) == 0;
  if (errno == ENOTSUP) return true;
  if (errno != ENODATA) return false;
  return fremovexattr(to, access_list_attribute) == 0 || errno == ENODATA;
}
#else
bool copy_access_list(int, int) { return true; }
#endif

std::vector<LostAttribute> describe_losses(const Kept& kept) {
  std::vector<LostAttribute> losses;
  if (!kept.owner) losses.push_back({Kind::Owner});
  if (!kept.group) losses.push_back({Kind::Group});
  if (!kept.access_list) losses.push_back({Kind::AccessList});
  return losses;
}

}  // namespace

std::vector<LostAttribute> copy_access_rights(int from, const struct stat& state, int to) {
  Kept kept;
  copy_owner_and_group(state, to, kept);
  kept.access_list = copy_access_list(from, to);
  // With an access list, the group bits limit what anybody in the list may do. Without the list,
  // they would be the rights of the group.
  const bool keeps_group_bits = kept.group && kept.access_list;
  const mode_t mode = narrowed_mode(state.st_mode & permission_bits, kept.owner, keeps_group_bits);
  // Last, since a change of owner clears some bits, and since only the owner can open the file
  // before this.
  if (fchmod(to, mode) != 0) fail(FileFailure::Kind::NoAccessRights, errno);
  return describe_losses(kept);
}

std::vector<LostAttribute> restore_special_bits(const struct stat& wanted, int to) {
  if ((wanted.st_mode & special_bits) == 0) return {};
  const struct stat given = state_of(to, examining);
  const mode_t bits = narrowed_mode(wanted.st_mode & special_bits, given.st_uid == wanted.st_uid,
                                    given.st_gid == wanted.st_gid);
  // The system may take a bit away without an error.
  static_cast<void>(fchmod(to, (given.st_mode & permission_bits) | bits) == 0);
  const mode_t lost = wanted.st_mode & ~state_of(to, examining).st_mode;
  std::vector<LostAttribute> losses;
  if ((lost & S_ISUID) != 0) losses.push_back({Kind::SetUserId});
  if ((lost & S_ISGID) != 0) losses.push_back({Kind::SetGroupId});
  if ((lost & S_ISVTX) != 0) losses.push_back({Kind::StickyBit});
  return losses;
}

mode_t narrowed_mode(mode_t mode, bool keeps_owner, bool keeps_group) {
  mode_t owner = (mode >> 6U) & 07U;
  mode_t group = (mode >> 3U) & 07U;
  mode_t others = mode & 07U;
  mode_t special = mode & 07000U;
  if (!keeps_group) {
    group &= others;
    others = group;
    special &= ~static_cast<mode_t>(S_ISGID);
  }
  if (!keeps_owner) {
    group &= owner;
    others &= owner;
    special &= ~static_cast<mode_t>(S_ISUID);
  }
  return special | (owner << 6U) | (group << 3U) | others;
}

}  // namespace kelp::input::quill::lossless
