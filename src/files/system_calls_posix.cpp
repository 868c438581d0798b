#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "files/system_calls.hpp"

namespace kelp::input::quill {

namespace {

template <typename Call>
auto repeated_if_interrupted(Call call) {
  auto answer = call();
  while (answer < 0 && errno == EINTR) answer = call();
  return answer;
}

}  // namespace

int open_to_read(const std::string& path) {
  return repeated_if_interrupted([&] { return ::open(path.c_str(), O_RDONLY | O_CLOEXEC); });
}

int open_to_write(const std::string& path) {
  constexpr mode_t everybody = 0666;
  return repeated_if_interrupted(
      [&] { return ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, everybody); });
}

void close_file(int descriptor) noexcept { ::close(descriptor); }

std::size_t size_of_file(int descriptor) {
  struct stat status = {};
  const bool is_known = ::fstat(descriptor, &status) == 0;
  return is_known && S_ISREG(status.st_mode) ? static_cast<std::size_t>(status.st_size) : 0;
}

std::int64_t read_bytes(int descriptor, char* bytes, std::size_t size) {
  return repeated_if_interrupted([&] { return ::read(descriptor, bytes, size); });
}

std::int64_t write_bytes(int descriptor, std::string_view bytes) {
  return repeated_if_interrupted([&] { return ::write(descriptor, bytes.data(), bytes.size()); });
}

}  // namespace kelp::input::quill
