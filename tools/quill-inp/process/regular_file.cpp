#include "quill-inp/process/regular_file.hpp"

#include <fcntl.h>
#include <sys/stat.h>

#include "files/file_descriptor.hpp"

namespace kelp::input::quill::tool {

std::optional<FileBeginning> read_beginning(const std::string& path, std::uint64_t limit) {
  struct stat state {};
  if (stat(path.c_str(), &state) != 0 || !S_ISREG(state.st_mode)) return std::nullopt;
  // Not blocking, because another file may have taken the name meanwhile.
  const lossless::FileDescriptor file(lossless::open_in(AT_FDCWD, path, O_RDONLY | O_NONBLOCK));
  if (file.number() < 0 || fstat(file.number(), &state) != 0 || !S_ISREG(state.st_mode))
    return std::nullopt;
  try {
    const auto size = static_cast<std::uint64_t>(state.st_size);
    return FileBeginning{lossless::read_to_end(file.number(), limit, size),
                         {state.st_dev, state.st_ino}};
  } catch (const lossless::FileError&) {
    return std::nullopt;
  }
}

}  // namespace kelp::input::quill::tool
