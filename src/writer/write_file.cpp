#include <optional>
#include <stdexcept>

#include "files/plain_file.hpp"
#include "kelp/input/quill/document.hpp"

namespace kelp::input::quill {

void QuillInput::write_file(const std::string& path) const {
  std::optional<PlainFile> file = PlainFile::for_writing(path);
  if (!file) throw std::runtime_error("Failed to open QUILL input for writing: " + path);
  static_cast<void>(file->write(to_string()));  // a full disk is not reported
}

}  // namespace kelp::input::quill
