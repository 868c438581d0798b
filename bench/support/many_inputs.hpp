#ifndef KELP_INPUT_QUILL_BENCH_SUPPORT_MANY_INPUTS_HPP
#define KELP_INPUT_QUILL_BENCH_SUPPORT_MANY_INPUTS_HPP

#include <cstddef>
#include <string>
#include <vector>

namespace kelp::input::quill::bench {

/// A folder with many small inputs, copies of the examples with the files that they refer to. It is
/// removed in the end.
class ManyInputs {
 public:
  explicit ManyInputs(std::size_t count);
  ManyInputs(const ManyInputs&) = delete;
  ManyInputs& operator=(const ManyInputs&) = delete;
  ~ManyInputs();

  const std::vector<std::string>& files() const { return files_; }

  /// The path of a file with the names of all inputs, one on each line.
  const std::string& list() const { return list_; }

 private:
  std::string folder_;
  std::string list_;
  std::vector<std::string> files_ = {};
};

}  // namespace kelp::input::quill::bench

#endif  // KELP_INPUT_QUILL_BENCH_SUPPORT_MANY_INPUTS_HPP
