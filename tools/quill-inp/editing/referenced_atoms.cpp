#include "quill-inp/editing/referenced_atoms.hpp"

#include <fcntl.h>
#include <sys/stat.h>

#include <cstdint>
#include <string_view>

#include "kelp/input/quill/lossless/xyz_frames.hpp"
#include "quill-inp/process/file_descriptor.hpp"
#include "quill-inp/process/trouble.hpp"

namespace kelp::input::quill::tool {

namespace {

/// Longer than any first line of an XYZ file.
constexpr std::uint64_t enough = 255;

/// Returns the beginning of a regular file. Other files are closed at once: reading a pipe would
/// wait.
std::optional<std::string> read_beginning(const std::string& path) {
  const FileDescriptor file(open_in(AT_FDCWD, path, O_RDONLY | O_NONBLOCK));
  struct stat state {};
  if (file.number() < 0 || fstat(file.number(), &state) != 0 || !S_ISREG(state.st_mode))
    return std::nullopt;
  try {
    return read_to_end(file.number(), enough, 0);
  } catch (const Trouble&) {
    return std::nullopt;
  }
}

}  // namespace

std::optional<std::size_t> count_referenced_atoms(const std::string& folder,
                                                  const std::string& path) {
  const bool is_absolute = !path.empty() && path.front() == '/';
  const auto beginning = read_beginning(is_absolute ? path : folder + "/" + path);
  return beginning ? lossless::find_xyz_count(*beginning) : std::nullopt;
}

}  // namespace kelp::input::quill::tool
