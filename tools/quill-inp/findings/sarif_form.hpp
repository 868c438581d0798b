#ifndef KELP_INPUT_QUILL_TOOL_FINDINGS_SARIF_FORM_HPP
#define KELP_INPUT_QUILL_TOOL_FINDINGS_SARIF_FORM_HPP

#include <string_view>
#include <vector>

#include "quill-inp/findings/file_report.hpp"
#include "quill-inp/formats/json_writer.hpp"

namespace kelp::input::quill::tool {

/// Writes the findings of all files as one log of the format SARIF 2.1.0. Its columns count code
/// points, and its regions have bytes too. Paths are relative addresses, escaped where that is
/// necessary.
void write_sarif_form(const std::vector<FileReport>& reports, std::string_view version,
                      const JsonWriter::Sink& sink);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_FINDINGS_SARIF_FORM_HPP
