#include "reader/file_content.hpp"

#include <array>
#include <cstddef>

#include "files/plain_file.hpp"

namespace kelp::input::quill {

namespace {

/// Fills `content` from the file, cuts off what the file is too short for, and returns whether the
/// bytes could be read.
bool fill(std::string& content, PlainFile& file) {
  std::size_t filled = 0;
  while (filled < content.size()) {
    const auto count = file.read(content.data() + filled, content.size() - filled);
    if (!count) return false;
    if (*count == 0) break;
    filled += *count;
  }
  content.resize(filled);
  return true;
}

/// Appends the rest of the file and returns whether it could be read.
bool append_rest(std::string& content, PlainFile& file) {
  std::array<char, 8192> bytes;
  for (;;) {
    const auto count = file.read(bytes.data(), bytes.size());
    if (!count) return false;
    if (*count == 0) return true;
    content.append(bytes.data(), *count);
  }
}

}  // namespace

std::optional<std::string> read_file_content(const std::string& path) {
  std::optional<PlainFile> file = PlainFile::for_reading(path);
  if (!file) return std::nullopt;
  // The size is a hint only: a pipe has none, and a file may grow while it is read.
  std::string content(file->size(), '\0');
  if (!fill(content, *file) || !append_rest(content, *file)) return std::nullopt;
  return content;
}

}  // namespace kelp::input::quill
