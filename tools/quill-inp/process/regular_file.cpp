#include "quill-inp/process/regular_file.hpp"

#include <fcntl.h>
#include <sys/stat.h>

#include "quill-inp/process/file_descriptor.hpp"
#include "quill-inp/process/trouble.hpp"

namespace kelp::input::quill::tool {

std::optional<FileBeginning> read_beginning(const std::string& path, std::uint64_t limit) {
  struct stat state {};
  if (stat(path.c_str(), &state) != 0 || !S_ISREG(state.st_mode)) return std::nullopt;
  // Not blocking, because another file may have taken the name meanwhile.
  const FileDescriptor file(open_in(AT_FDCWD, path, O_RDONLY | O_NONBLOCK));
  if (file.number() < 0 || fstat(file.number(), &state) != 0 || !S_ISREG(state.st_mode))
    return std::nullopt;
  try {
    const auto size = static_cast<std::uint64_t>(state.st_size);
    return FileBeginning{read_to_end(file.number(), limit, size), {state.st_dev, state.st_ino}};
  } catch (const Trouble&) {
    return std::nullopt;
  }
}

}  // namespace kelp::input::quill::tool
