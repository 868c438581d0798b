#include "language_server/diagnostics/page_address.hpp"

#include <filesystem>
#include <system_error>

#include "language_server/project/file_address.hpp"

namespace kelp::input::quill::language_server {

std::string page_address(std::string_view code, const Pages& pages) {
  const std::string name = std::string(code) + ".md";
  if (!pages.prefix.empty()) return pages.prefix + name;
  const std::string path = referenced_path(pages.folder, name);
  std::error_code error;
  const bool is_installed = !pages.folder.empty() && std::filesystem::is_regular_file(path, error);
  return is_installed ? address_of_path(path) : std::string();
}

}  // namespace kelp::input::quill::language_server
