#ifndef KELP_INPUT_QUILL_BENCH_SUPPORT_SCRATCH_PATH_HPP
#define KELP_INPUT_QUILL_BENCH_SUPPORT_SCRATCH_PATH_HPP

#include <filesystem>
#include <random>
#include <string>
#include <system_error>

namespace kelp::input::quill::bench {

/// The path of a file that does not exist yet, in the folder for temporary files; if the file
/// exists at the end, it is removed.
class ScratchPath {
 public:
  ScratchPath()
      : path_((std::filesystem::temp_directory_path() /
               ("kelp_quill_inp_bench_" + std::to_string(std::random_device()()) + ".qin"))
                  .string()) {}
  ScratchPath(const ScratchPath&) = delete;
  ScratchPath& operator=(const ScratchPath&) = delete;
  ~ScratchPath() {
    std::error_code ignored;
    std::filesystem::remove(path_, ignored);
  }

  const std::string& path() const { return path_; }

 private:
  std::string path_;
};

}  // namespace kelp::input::quill::bench

#endif  // KELP_INPUT_QUILL_BENCH_SUPPORT_SCRATCH_PATH_HPP
