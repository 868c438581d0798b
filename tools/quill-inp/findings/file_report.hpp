#ifndef KELP_INPUT_QUILL_TOOL_FINDINGS_FILE_REPORT_HPP
#define KELP_INPUT_QUILL_TOOL_FINDINGS_FILE_REPORT_HPP

#include <cstddef>
#include <map>
#include <string>
#include <string_view>

#include "kelp/input/quill/lossless/read_text.hpp"
#include "lint/finding.hpp"

namespace kelp::input::quill::tool {

/// So many findings of a rule are shown for a file, since nobody reads more, and since they take
/// much more memory than the text. The others are counted.
constexpr std::size_t most_of_a_rule = 1000;

/// What was found in a file: its name as it is shown, what the reader made of it, the findings to
/// show, in their order, and how many more there are.
struct FileReport {
  std::string name = {};
  lossless::ReadText read = {};
  lint::Findings findings = {};
  std::map<std::string_view, std::size_t> more = {};  // findings that are not shown, by their code
};

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_FINDINGS_FILE_REPORT_HPP
