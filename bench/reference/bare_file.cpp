#include <fcntl.h>
#include <unistd.h>

#include "reference/bare_loops.hpp"

namespace kelp::input::quill::bench {

bool write_bare_file(const std::string& path, std::string_view text) {
  constexpr mode_t everybody = 0666;
  const int file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, everybody);
  if (file < 0) return false;
  const bool is_written =
      ::write(file, text.data(), text.size()) == static_cast<ssize_t>(text.size());
  return ::close(file) == 0 && is_written;
}

}  // namespace kelp::input::quill::bench
