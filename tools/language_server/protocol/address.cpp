#include "language_server/protocol/address.hpp"

#include <cstddef>
#include <vector>

#include "quill-inp/text/percent_encoding.hpp"

namespace kelp::input::quill::language_server {

namespace {

constexpr std::size_t npos = std::string_view::npos;

/// Returns where the path of an address begins: "/a" in "file:///a", "file://host/a" and "file:/a".
std::size_t start_of_path(std::string_view address) {
  const std::size_t colon = address.find(':');
  if (colon == npos) return npos;
  const bool has_authority = address.substr(colon + 1, 2) == "//";
  return address.find('/', has_authority ? colon + 3 : colon + 1);
}

/// Returns a path that begins with "/" without the segments "." and "..".
std::string without_dots(std::string_view path) {
  std::vector<std::string_view> kept;
  while (!path.empty()) {
    path.remove_prefix(1);
    const std::string_view segment = path.substr(0, path.find('/'));
    path.remove_prefix(segment.size());
    const bool is_last = path.empty();
    if (segment == ".." && !kept.empty()) kept.pop_back();
    if (segment != "." && segment != "..") {
      kept.push_back(segment);
    } else if (is_last) {
      kept.push_back({});
    }
  }
  std::string text;
  for (const std::string_view segment : kept) text.append("/").append(segment);
  return text;
}

}  // namespace

std::optional<std::string> address_of_reference(std::string_view document, std::string_view path) {
  const std::size_t start = start_of_path(document);
  if (start == npos) return std::nullopt;
  const std::string root(document.substr(0, start));
  if (path.substr(0, 1) == "/") return root + without_dots(tool::percent_encoded(path));
  const std::string folder(document.substr(start, document.rfind('/') + 1 - start));
  return root + without_dots(folder + tool::percent_encoded(path));
}

}  // namespace kelp::input::quill::language_server
