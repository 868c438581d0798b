#include "language_server/facts/xyz_candidates.hpp"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "kelp/core/text.hpp"
#include "language_server/facts/folder_entries.hpp"
#include "quill-inp/text/utf8.hpp"

namespace kelp::input::quill::language_server {

namespace {

namespace fs = std::filesystem;

bool is_shown(const std::string& name) { return name.front() != '.' && tool::is_utf8(name); }

void add_if_fitting(const fs::directory_entry& entry, std::vector<XyzCandidate>& found) {
  std::error_code error;
  const std::string name = entry.path().filename().string();
  if (!is_shown(name)) return;
  const std::string ending = core::text::to_lower_copy(entry.path().extension().string());
  if (entry.is_directory(error)) {
    found.push_back({name, true});
  } else if (ending == ".xyz") {
    found.push_back({name, false});
  }
}

}  // namespace

std::vector<XyzCandidate> find_xyz_candidates(const std::string& folder) {
  std::vector<XyzCandidate> found;
  for_each_entry(folder, [&](const fs::directory_entry& entry) { add_if_fitting(entry, found); });
  std::sort(found.begin(), found.end(), [](const XyzCandidate& left, const XyzCandidate& right) {
    return left.name < right.name;
  });
  return found;
}

}  // namespace kelp::input::quill::language_server
