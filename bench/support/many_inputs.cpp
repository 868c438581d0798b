#include "support/many_inputs.hpp"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <random>
#include <system_error>

namespace kelp::input::quill::bench {

namespace {

namespace fs = std::filesystem;

/// The inputs of the examples without the one that is full of mistakes, in the order of their
/// names.
std::vector<fs::path> example_inputs() {
  std::vector<fs::path> inputs;
  for (const auto& entry : fs::directory_iterator(KELP_QUILL_INP_EXAMPLE_INPUTS)) {
    if (entry.path().extension() == ".qin" && entry.path().stem() != "careless")
      inputs.push_back(entry.path());
  }
  std::sort(inputs.begin(), inputs.end());
  return inputs;
}

}  // namespace

ManyInputs::ManyInputs(std::size_t count)
    : folder_((fs::temp_directory_path() /
               ("kelp_quill_inp_bench_" + std::to_string(std::random_device()())))
                  .string()),
      list_(folder_ + "/list") {
  fs::copy(KELP_QUILL_INP_EXAMPLE_INPUTS, folder_, fs::copy_options::recursive);
  const std::vector<fs::path> examples = example_inputs();
  std::ofstream list(list_);
  for (std::size_t i = 0; i < count; ++i) {
    files_.push_back(folder_ + "/" + std::to_string(i) + ".qin");
    fs::copy_file(examples[i % examples.size()], files_.back());
    list << files_.back() << '\n';
  }
}

ManyInputs::~ManyInputs() {
  std::error_code ignored;
  fs::remove_all(folder_, ignored);
}

}  // namespace kelp::input::quill::bench
