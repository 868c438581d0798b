#include "language_server/diagnostics/page_address.hpp"

#include <cstddef>
#include <filesystem>
#include <system_error>

#include "kelp/core/text.hpp"
#include "language_server/project/file_address.hpp"

namespace kelp::input::quill::language_server {

namespace {

constexpr std::string_view code_field = "{CODE}";
constexpr std::string_view small_code_field = "{code}";

/// Replaces all fields of a name by a value, which has none.
std::string filled(std::string text, std::string_view field, std::string_view value) {
  for (std::size_t at = text.find(field); at != std::string::npos; at = text.find(field))
    text.replace(at, field.size(), value);
  return text;
}

std::string chosen_address(std::string_view code, const std::string& pages) {
  const std::string small_code = core::text::to_lower_copy(code);
  const std::string address = filled(filled(pages, code_field, code), small_code_field, small_code);
  return address == pages ? pages + std::string(code) + ".md" : address;
}

}  // namespace

std::string page_address(std::string_view code, const Pages& pages) {
  if (!pages.address.empty()) return chosen_address(code, pages.address);
  const std::string path = referenced_path(pages.folder, std::string(code) + ".md");
  std::error_code error;
  const bool is_installed = !pages.folder.empty() && std::filesystem::is_regular_file(path, error);
  return is_installed ? address_of_path(path) : std::string();
}

}  // namespace kelp::input::quill::language_server
