#include "reader/file_content.hpp"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <ios>
#include <locale>
#include <system_error>

namespace kelp::input::quill {

namespace {

constexpr std::size_t chunk_size = std::size_t{64} * 1024;

/// Returns the size that the file system tells for a regular file, and 0 for anything else.
std::size_t expected_size(const std::string& path) {
  std::error_code error;
  const std::uintmax_t size = std::filesystem::file_size(path, error);
  return error ? 0 : static_cast<std::size_t>(size);
}

/// Appends up to `limit` bytes to `content` and returns how many there were.
std::size_t append_bytes(std::filebuf& file, std::size_t limit, std::string& content) {
  const std::size_t size = content.size();
  content.resize(size + limit);
  const std::streamsize count =
      file.sgetn(content.data() + size, static_cast<std::streamsize>(limit));
  content.resize(size + static_cast<std::size_t>(count));
  return static_cast<std::size_t>(count);
}

std::string read_to_end(std::filebuf& file, std::size_t size_hint) {
  std::string content;
  append_bytes(file, size_hint, content);
  // The size is a hint only: a pipe has none, and a file may grow while it is read.
  while (file.sgetc() != std::filebuf::traits_type::eof()) append_bytes(file, chunk_size, content);
  return content;
}

}  // namespace

std::optional<std::string> read_file_content(const std::string& path) {
  if (path.find('\0') != std::string::npos) return std::nullopt;  // would name another file
  // A stream would swallow the bad_alloc of its buffer and hand over a shorter text; a file buffer
  // lets it pass, and reports failed reads by ios_base::failure.
  std::filebuf file;
  file.pubimbue(std::locale::classic());
  if (file.open(path.c_str(), std::ios_base::in) == nullptr) return std::nullopt;
  try {
    return read_to_end(file, expected_size(path));
  } catch (const std::ios_base::failure&) {
    return std::nullopt;
  }
}

}  // namespace kelp::input::quill
