#include "language_server/project/file_address.hpp"

#include <filesystem>

#include "kelp/core/text.hpp"
#include "quill-inp/text/percent_encoding.hpp"

namespace kelp::input::quill::language_server {

namespace {

constexpr std::string_view scheme = "file://";
constexpr std::string_view own_host = "localhost";

}  // namespace

std::string path_of_address(std::string_view address) {
  if (core::text::to_lower_copy(address.substr(0, scheme.size())) != scheme) return {};
  address.remove_prefix(scheme.size());
  address = address.substr(0, address.find_first_of("?#"));
  const std::size_t slash = address.find('/');
  if (slash == std::string_view::npos) return {};
  const std::string host = core::text::to_lower_copy(address.substr(0, slash));
  return host.empty() || host == own_host ? tool::percent_decoded(address.substr(slash))
                                          : std::string();
}

std::string address_of_path(std::string_view path) {
  return std::string(scheme) + tool::percent_encoded(path);
}

std::string referenced_path(const std::string& folder, const std::string& path) {
  return (std::filesystem::path(folder) / path).lexically_normal().string();
}

std::string folder_of(const std::string& path) {
  return std::filesystem::path(path).parent_path().string();
}

}  // namespace kelp::input::quill::language_server
