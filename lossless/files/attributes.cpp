#include "files/attributes.hpp"

#if defined(__linux__)

#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/xattr.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>

namespace kelp::input::quill::lossless {

namespace {

/// The access list is kept with the access rights, and the others are made from the content.
constexpr std::string_view not_copied[] = {"system.posix_acl_access", "security.ima",
                                           "security.evm"};

constexpr int most_tries = 10;

/// Calls a function that fills a buffer, and fails with ERANGE if that is too small: the list or
/// the value may grow while it is read.
template <typename Fill>
std::optional<std::string> read_all(const Fill& fill) {
  for (int i = 0; i < most_tries; ++i) {
    const ssize_t size = fill(nullptr, 0);
    if (size < 0) return std::nullopt;
    std::string content(static_cast<std::size_t>(size), '\0');
    const ssize_t count = fill(content.data(), content.size());
    if (count < 0 && errno != ERANGE) return std::nullopt;
    if (count < 0) continue;
    content.resize(static_cast<std::size_t>(count));
    return content;
  }
  return std::nullopt;
}

std::vector<std::string> list_attributes(int file) {
  const auto fill = [&](char* data, std::size_t size) { return flistxattr(file, data, size); };
  const std::string list = read_all(fill).value_or("");
  std::vector<std::string> names;
  for (std::size_t begin = 0; begin < list.size();) {
    names.emplace_back(list.c_str() + begin);
    begin += names.back().size() + 1;
  }
  return names;
}

std::optional<std::string> find_attribute(int file, const std::string& name) {
  const auto fill = [&](char* data, std::size_t size) {
    return fgetxattr(file, name.c_str(), data, size);
  };
  return read_all(fill);
}

bool copy_attribute(const std::string& name, int from, int to) {
  const std::optional<std::string> value = find_attribute(from, name);
  if (!value) return false;
  // The system sets some for every new file, but does not let a user set them.
  if (find_attribute(to, name) == value) return true;
  return fsetxattr(to, name.c_str(), value->data(), value->size(), 0) == 0;
}

LostAttribute loss_of(const std::string& name) {
  using Kind = LostAttribute::Kind;
  if (name == "security.capability") return {Kind::Capabilities};
  return {Kind::ExtendedAttribute, name};
}

/// Flags that a user can set. With the other two, the file could not be replaced.
constexpr unsigned copied_flags =
    FS_FL_USER_MODIFIABLE & ~static_cast<unsigned>(FS_IMMUTABLE_FL | FS_APPEND_FL);

/// Returns the flags of a file, or nothing where the file system has none.
std::optional<unsigned> find_flags(int file) {
  // The system takes the address of an int, whatever the name of the call says.
  unsigned flags = 0;
  if (ioctl(file, FS_IOC_GETFLAGS, &flags) != 0) return std::nullopt;
  return flags;
}

}  // namespace

std::vector<LostAttribute> copy_attributes(int from, int to) {
  std::vector<LostAttribute> losses;
  for (const std::string& name : list_attributes(from)) {
    const bool is_copied =
        std::find(std::begin(not_copied), std::end(not_copied), name) == std::end(not_copied);
    if (is_copied && !copy_attribute(name, from, to)) losses.push_back(loss_of(name));
  }
  return losses;
}

std::vector<LostAttribute> copy_inode_flags(int from, int to) {
  const std::optional<unsigned> wanted = find_flags(from);
  const std::optional<unsigned> given = find_flags(to);
  if (!wanted || !given || ((*wanted ^ *given) & copied_flags) == 0) return {};
  const unsigned all = (*given & ~copied_flags) | (*wanted & copied_flags);
  if (ioctl(to, FS_IOC_SETFLAGS, &all) == 0) return {};
  return {{LostAttribute::Kind::Flags}};
}

}  // namespace kelp::input::quill::lossless

#else

namespace kelp::input::quill::lossless {

std::vector<LostAttribute> copy_attributes(int, int) { return {}; }

std::vector<LostAttribute> copy_inode_flags(int, int) { return {}; }

}  // namespace kelp::input::quill::lossless

#endif
