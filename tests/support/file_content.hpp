#ifndef KELP_INPUT_QUILL_TESTS_SUPPORT_FILE_CONTENT_HPP
#define KELP_INPUT_QUILL_TESTS_SUPPORT_FILE_CONTENT_HPP

#include <filesystem>
#include <fstream>
#include <ios>
#include <optional>
#include <string>

namespace kelp::input::quill {

/// Returns the bytes of a file, or nothing when it is not there.
inline std::optional<std::string> file_content(const std::string& path) {
  std::ifstream file(path, std::ios_base::binary);
  if (!file) {
    return std::nullopt;
  }
  std::string content(std::filesystem::file_size(path), '\0');
  file.read(content.data(), static_cast<std::streamsize>(content.size()));
  return content;
}

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_TESTS_SUPPORT_FILE_CONTENT_HPP
