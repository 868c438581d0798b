#ifndef KELP_INPUT_QUILL_TOOL_FINDINGS_TEXT_FORM_HPP
#define KELP_INPUT_QUILL_TOOL_FINDINGS_TEXT_FORM_HPP

#include <string>

#include "quill-inp/findings/file_report.hpp"

namespace kelp::input::quill::tool {

/// Returns findings for people, each as "path:line:column: severity: message [code]", the line with
/// carets under the place, and what to do. Columns count bytes; the carets are under the
/// characters. A long line is shown in part. Bytes that would control a terminal are escaped. At
/// the end, a line for each code says how many more findings there are.
std::string text_form(const FileReport& report, bool is_colored);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_FINDINGS_TEXT_FORM_HPP
