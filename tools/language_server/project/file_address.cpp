#include "language_server/project/file_address.hpp"

#include <filesystem>
#include <optional>

#include "kelp/core/text.hpp"
#include "quill-inp/text/hexadecimal.hpp"

namespace kelp::input::quill::language_server {

namespace {

constexpr std::string_view scheme = "file://";
constexpr std::string_view own_host = "localhost";

bool is_plain(char c) {
  return ('a' <= c && c <= 'z') || ('A' <= c && c <= 'Z') || ('0' <= c && c <= '9') ||
         std::string_view("-._~/").find(c) != std::string_view::npos;
}

/// Returns the byte that two digits after a '%' stand for.
std::optional<char> escaped_byte(std::string_view digits) {
  if (digits.size() < 2) return std::nullopt;
  unsigned byte = 0;
  for (const char digit : core::text::to_lower_copy(digits.substr(0, 2))) {
    const std::size_t value = tool::hexadecimal_digits.find(digit);
    if (value == std::string_view::npos) return std::nullopt;
    byte = 16 * byte + static_cast<unsigned>(value);
  }
  return static_cast<char>(byte);
}

std::string unescaped(std::string_view text) {
  std::string bytes;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto byte = text[i] == '%' ? escaped_byte(text.substr(i + 1)) : std::nullopt;
    bytes += byte.value_or(text[i]);
    if (byte) i += 2;
  }
  return bytes;
}

}  // namespace

std::string path_of_address(std::string_view address) {
  if (core::text::to_lower_copy(address.substr(0, scheme.size())) != scheme) return {};
  address.remove_prefix(scheme.size());
  address = address.substr(0, address.find_first_of("?#"));
  const std::size_t slash = address.find('/');
  if (slash == std::string_view::npos) return {};
  const std::string host = core::text::to_lower_copy(address.substr(0, slash));
  return host.empty() || host == own_host ? unescaped(address.substr(slash)) : std::string();
}

std::string address_of_path(std::string_view path) {
  std::string address(scheme);
  for (const char c : path) {
    if (is_plain(c)) {
      address += c;
    } else {
      address += '%';
      tool::append_hexadecimal(address, static_cast<unsigned char>(c), 2);
    }
  }
  return address;
}

std::string referenced_path(const std::string& folder, const std::string& path) {
  return (std::filesystem::path(folder) / path).lexically_normal().string();
}

std::string folder_of(const std::string& path) {
  return std::filesystem::path(path).parent_path().string();
}

}  // namespace kelp::input::quill::language_server
