#ifndef KELP_INPUT_QUILL_TOOL_FINDINGS_FILE_REPORT_HPP
#define KELP_INPUT_QUILL_TOOL_FINDINGS_FILE_REPORT_HPP

#include <string>

#include "kelp/input/quill/lossless/read_text.hpp"
#include "lint/finding.hpp"

namespace kelp::input::quill::tool {

/// What was found in a file: its name as it is shown, what the reader made of it, and the findings
/// to report, in their order.
struct FileReport {
  std::string name = {};
  lossless::ReadText read = {};
  lint::Findings findings = {};
};

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_FINDINGS_FILE_REPORT_HPP
