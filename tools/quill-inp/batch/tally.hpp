#ifndef KELP_INPUT_QUILL_TOOL_BATCH_TALLY_HPP
#define KELP_INPUT_QUILL_TOOL_BATCH_TALLY_HPP

#include <cstddef>
#include <string>
#include <string_view>

#include "quill-inp/process/exit_code.hpp"

namespace kelp::input::quill::tool {

/// The results for the files of a call, counted.
struct Tally {
  std::size_t files = 0;
  std::size_t changed = 0;
  std::size_t without_match = 0;  // or another "no"
  std::size_t refused = 0;        // or in other trouble

  /// Counts one more file, for which the code is the answer.
  void add(ExitCode code, bool was_changed);
};

/// Returns the counts in words: "10,000 files, 37 changed, 2 refused", with another word for
/// "changed". The numbers without a match and refused are left out if they are 0.
std::string words(const Tally& tally, std::string_view changed);

/// Returns a number with commas between its thousands.
std::string grouped(std::size_t number);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_BATCH_TALLY_HPP
