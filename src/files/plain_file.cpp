#include "files/plain_file.hpp"

#include <utility>

#include "files/system_calls.hpp"

namespace kelp::input::quill {

namespace {

constexpr int none = -1;

bool names_a_file(const std::string& path) { return path.find('\0') == std::string::npos; }

}  // namespace

std::optional<PlainFile> PlainFile::for_reading(const std::string& path) {
  return opened(names_a_file(path) ? open_to_read(path) : none);
}

std::optional<PlainFile> PlainFile::for_writing(const std::string& path) {
  return opened(names_a_file(path) ? open_to_write(path) : none);
}

std::optional<PlainFile> PlainFile::opened(int descriptor) {
  if (descriptor < 0) return std::nullopt;
  return PlainFile(descriptor);
}

PlainFile::PlainFile(PlainFile&& other) noexcept
    : descriptor_(std::exchange(other.descriptor_, none)) {}

PlainFile::~PlainFile() {
  if (descriptor_ >= 0) close_file(descriptor_);
}

std::size_t PlainFile::size() const { return size_of_file(descriptor_); }

// Reading and writing move the position in the file, so they are not functions of a constant file.
// NOLINTNEXTLINE(readability-make-member-function-const)
std::optional<std::size_t> PlainFile::read(char* bytes, std::size_t size) {
  const std::int64_t count = read_bytes(descriptor_, bytes, size);
  if (count < 0) return std::nullopt;
  return static_cast<std::size_t>(count);
}

// As for reading.
// NOLINTNEXTLINE(readability-make-member-function-const)
bool PlainFile::write(std::string_view bytes) {
  while (!bytes.empty()) {
    const std::int64_t count = write_bytes(descriptor_, bytes);
    if (count < 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
  return true;
}

}  // namespace kelp::input::quill
