#ifndef KELP_INPUT_QUILL_TESTS_SUPPORT_FILE_CONTENT_HPP
#define KELP_INPUT_QUILL_TESTS_SUPPORT_FILE_CONTENT_HPP

#include <fstream>
#include <ios>
#include <iterator>
#include <optional>
#include <string>

namespace kelp::input::quill {

/// Returns the bytes of a file, or nothing when it is not there.
inline std::optional<std::string> file_content(const std::string& path) {
  std::ifstream file(path, std::ios_base::binary);
  if (!file)
    return std::nullopt;
  return std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
}

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_TESTS_SUPPORT_FILE_CONTENT_HPP
