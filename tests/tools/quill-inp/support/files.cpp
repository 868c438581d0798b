#include "tools/quill-inp/support/files.hpp"

#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace kelp::input::quill::tool {

std::string content_of(const std::string& path) {
  std::ifstream file(path, std::ios_base::binary);
  if (!file) throw std::runtime_error("cannot read " + path);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

struct stat state_of(const std::string& path) {
  struct stat state {};
  if (lstat(path.c_str(), &state) != 0) throw std::runtime_error("no file " + path);
  return state;
}

unsigned mode_of(const std::string& path) { return state_of(path).st_mode & 07777U; }

std::vector<std::string> names_in(const std::string& folder) {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(folder))
    names.push_back(entry.path().filename().string());
  std::sort(names.begin(), names.end());
  return names;
}

void copy_example_inputs(const std::string& folder) {
  std::filesystem::copy(QUILL_INP_EXAMPLE_INPUTS, folder, std::filesystem::copy_options::recursive);
}

bool use_memory_for_temporary_files() {
  return access("/dev/shm", W_OK) == 0 && setenv("TMPDIR", "/dev/shm", 1) == 0;
}

const char* const water =
    "#opt(maxiter=50, tight)\n"
    "#model = m1\n"
    "\n"
    "0 1\n"
    "O        0.000000      0.000000      0.117176\n"
    "H        0.000000      0.756950     -0.468706\n"
    "H        0.000000     -0.756950     -0.468706\n";

std::string changed_water() {
  std::string text = water;
  return text.replace(text.find("m1"), 2, "m2");
}

}  // namespace kelp::input::quill::tool
