#ifndef KELP_INPUT_QUILL_TOOL_FINDINGS_GITHUB_FORM_HPP
#define KELP_INPUT_QUILL_TOOL_FINDINGS_GITHUB_FORM_HPP

#include <string>

#include "quill-inp/findings/file_report.hpp"

namespace kelp::input::quill::tool {

/// Returns findings as the commands that mark lines of a change in a log: one line for each,
/// "::error file=job.qin,line=4,col=7,title=QL104::message".
std::string github_form(const FileReport& report);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_FINDINGS_GITHUB_FORM_HPP
