// Replaces libFuzzer where it is not available: runs the target once on every file that is named on
// the command line, and on every file in every named folder. Fails when one of them has a finding,
// when a named file cannot be opened, and when a named folder has no files.

#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <vector>

#include "fuzz/target.hpp"

namespace {

namespace fs = std::filesystem;

std::vector<fs::path> files_at(const fs::path& path) {
  if (!fs::is_directory(path)) return {path};
  std::vector<fs::path> files;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(path)) {
    if (entry.is_regular_file()) files.push_back(entry.path());
  }
  return files;
}

bool replay(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) {
    std::cerr << "cannot open " << path.string() << '\n';
    return false;
  }
  const std::string bytes(std::istreambuf_iterator<char>(file), {});
  try {
    // A separate block of exactly this size, as libFuzzer uses.
    const std::vector<std::uint8_t> block(bytes.begin(), bytes.end());
    LLVMFuzzerTestOneInput(block.data(), block.size());
    return true;
  } catch (const std::exception& exception) {
    std::cerr << path.string() << ": " << exception.what() << '\n';
    return false;
  }
}

}  // namespace

int main(int argc, char** argv) {
  std::size_t replayed = 0;
  std::size_t failed = 0;
  bool is_complete = argc > 1;
  for (const std::string& argument : std::vector<std::string>(argv + 1, argv + argc)) {
    const std::vector<fs::path> files = files_at(argument);
    if (files.empty()) {
      std::cerr << "no files in " << argument << '\n';
      is_complete = false;
    }
    for (const fs::path& path : files) {
      ++replayed;
      if (!replay(path)) ++failed;
    }
  }
  std::cout << replayed << " files, " << failed << " of them with a finding\n";
  return is_complete && failed == 0 ? 0 : 1;
}
