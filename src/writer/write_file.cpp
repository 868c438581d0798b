#include <fstream>
#include <ios>
#include <locale>
#include <stdexcept>

#include "kelp/input/quill/document.hpp"

namespace kelp::input::quill {

void QuillInput::write_file(const std::string& path) const {
  // A file buffer, and not a stream, so that running out of memory is reported instead of being
  // taken for a failed write.
  std::filebuf file;
  file.pubimbue(std::locale::classic());
  const bool names_a_file = path.find('\0') == std::string::npos;
  if (!names_a_file || file.open(path.c_str(), std::ios_base::out) == nullptr) {
    throw std::runtime_error("Failed to open QUILL input for writing: " + path);
  }
  const std::string text = to_string();
  file.sputn(text.data(), static_cast<std::streamsize>(text.size()));
}

}  // namespace kelp::input::quill
