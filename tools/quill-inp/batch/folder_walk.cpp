#include "quill-inp/batch/folder_walk.hpp"

#include <fnmatch.h>
#include <sys/stat.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <system_error>

namespace kelp::input::quill::tool {

namespace {

namespace fs = std::filesystem;

bool matches(const std::string& below_folder, const std::vector<std::string>& patterns) {
  const std::string name = below_folder.substr(below_folder.rfind('/') + 1);
  return std::any_of(patterns.begin(), patterns.end(), [&](const std::string& pattern) {
    const bool is_for_paths = pattern.find('/') != std::string::npos;
    return fnmatch(pattern.c_str(), (is_for_paths ? below_folder : name).c_str(),
                   FNM_PERIOD | FNM_PATHNAME) == 0;
  });
}

/// The content of a folder, the last name first, as a stack needs it.
std::vector<fs::directory_entry> entries_of(const std::string& folder, std::error_code& error) {
  std::vector<fs::directory_entry> entries;
  for (fs::directory_iterator i(folder, error); !error && i != fs::directory_iterator();
       i.increment(error))
    entries.push_back(*i);
  std::sort(entries.begin(), entries.end(), [](const auto& left, const auto& right) {
    return left.path().native() > right.path().native();
  });
  return entries;
}

bool is_hidden(const fs::path& path) { return path.filename().native().front() == '.'; }

/// The folder says what its entries are, and so the system is not asked for each of them.
bool is_folder_to_walk(const fs::directory_entry& entry) {
  std::error_code ignored;
  return !entry.is_symlink(ignored) && entry.is_directory(ignored) && !is_hidden(entry.path());
}

bool is_file(const fs::directory_entry& entry) {
  std::error_code ignored;
  return entry.is_regular_file(ignored);
}

}  // namespace

bool is_folder(const std::string& path) {
  struct stat state {};
  return stat(path.c_str(), &state) == 0 && S_ISDIR(state.st_mode);
}

std::vector<std::string> find_files(
    const std::string& folder, const std::vector<std::string>& patterns,
    const std::function<void(const std::string&, int)>& tell_failure) {
  std::vector<std::string> files;
  std::vector<fs::directory_entry> left;
  const auto open_folder = [&](const std::string& path) {
    std::error_code error;
    for (fs::directory_entry& entry : entries_of(path, error)) left.push_back(std::move(entry));
    if (error) tell_failure(path, error.value());
  };
  open_folder(folder);
  const std::size_t prefix = folder.size() + (folder.empty() || folder.back() != '/' ? 1 : 0);
  while (!left.empty()) {
    const fs::directory_entry entry = std::move(left.back());
    left.pop_back();
    const std::string& path = entry.path().native();
    if (is_folder_to_walk(entry)) {
      open_folder(path);
    } else if (is_file(entry) && matches(path.substr(prefix), patterns)) {
      files.push_back(path);
    }
  }
  return files;
}

}  // namespace kelp::input::quill::tool
