#include "properties/sample_files.hpp"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <ostream>
#include <stdexcept>

#include "properties/obvious_text.hpp"

namespace kelp::input::quill {

namespace {

namespace fs = std::filesystem;

SampleFile read_sample(const fs::path& folder, const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error("cannot open " + path.string());
  return {path.lexically_relative(folder).string(),
          std::string(std::istreambuf_iterator<char>(file), {})};
}

}  // namespace

void PrintTo(const SampleFile& file, std::ostream* out) { *out << file.name; }

std::vector<SampleFile> sample_files(const std::string& folder) {
  const fs::path root = fs::path(KELP_QUILL_INP_SOURCE_DIR) / folder;
  std::vector<SampleFile> files;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(root)) {
    if (entry.is_regular_file()) files.push_back(read_sample(root, entry.path()));
  }
  if (files.empty()) throw std::runtime_error("no files in " + root.string());
  std::sort(files.begin(), files.end(),
            [](const auto& left, const auto& right) { return left.name < right.name; });
  return files;
}

std::vector<SampleFile> example_inputs() {
  std::vector<SampleFile> inputs;
  for (SampleFile& file : sample_files("examples/inputs")) {
    if (fs::path(file.name).extension() == ".qin") inputs.push_back(std::move(file));
  }
  return inputs;
}

SampleFile example_input(const std::string& name) {
  return read_sample(KELP_QUILL_INP_SOURCE_DIR,
                     fs::path(KELP_QUILL_INP_SOURCE_DIR) / "examples/inputs" / name);
}

std::string test_name(const SampleFile& file) {
  std::string name = file.name;
  for (char& c : name) {
    if (!obvious::is_letter(c) && !obvious::is_digit(c)) c = '_';
  }
  return name;
}

}  // namespace kelp::input::quill
