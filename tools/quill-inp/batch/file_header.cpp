#include "quill-inp/batch/file_header.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "kelp/core/text.hpp"
#include "kelp/input/quill/reader.hpp"
#include "quill-inp/process/regular_file.hpp"

namespace kelp::input::quill::tool {

namespace {

// Nobody writes a longer header.
constexpr std::uint64_t longest_header = std::uint64_t{64} * 1024;

/// Returns the lines up to the first one that is not part of a header.
std::string_view header_of(std::string_view text) {
  std::size_t end = 0;
  while (end < text.size()) {
    const std::size_t line_end = std::min(text.find('\n', end), text.size() - 1) + 1;
    const std::string line = core::text::trim(text.substr(end, line_end - end));
    if (!line.empty() && line.front() != '#') break;
    end = line_end;
  }
  return text.substr(0, end);
}

}  // namespace

std::optional<FileHeader> read_header(const std::string& path) {
  const std::optional<FileBeginning> beginning = read_beginning(path, longest_header);
  if (!beginning) return std::nullopt;
  return FileHeader{parse_string(header_of(beginning->text)).input.commands, beginning->identity};
}

}  // namespace kelp::input::quill::tool
