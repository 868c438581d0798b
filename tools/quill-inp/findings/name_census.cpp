#include "quill-inp/findings/name_census.hpp"

#include <sys/stat.h>

#include <cstddef>
#include <fstream>
#include <map>
#include <set>

#include "kelp/core/text.hpp"
#include "kelp/input/quill/reader.hpp"

namespace kelp::input::quill::tool {

namespace {

// Nobody writes a longer header, and this file may be anything.
constexpr std::size_t longest_header = std::size_t{64} * 1024;

bool is_regular_file(const std::string& path) {
  struct stat state {};
  return stat(path.c_str(), &state) == 0 && S_ISREG(state.st_mode);
}

/// Returns the lines of a file up to the first one that is not part of a header.
std::string read_header(const std::string& path) {
  std::string header;
  std::ifstream file(path, std::ios_base::binary);
  for (std::string line; header.size() < longest_header && std::getline(file, line);) {
    const std::string trimmed = core::text::trim(line);
    if (!trimmed.empty() && trimmed.front() != '#') break;
    header += line + "\n";
  }
  return header;
}

std::set<std::string> names_in(const std::string& path) {
  std::set<std::string> names;
  if (!is_regular_file(path)) return names;
  for (const std::string& name : parse_string(read_header(path)).input.command_names())
    names.insert(normalize_command_name(name));
  return names;
}

}  // namespace

std::vector<std::string> names_in_several_files(const std::vector<std::string>& files) {
  std::map<std::string, std::size_t> counts;
  for (const std::string& file : std::set<std::string>(files.begin(), files.end())) {
    for (const std::string& name : names_in(file)) ++counts[name];
  }
  std::vector<std::string> names;
  for (const auto& [name, count] : counts) {
    if (count >= 2) names.push_back(name);
  }
  return names;
}

}  // namespace kelp::input::quill::tool
