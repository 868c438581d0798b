#ifndef KELP_INPUT_QUILL_TOOL_FINDINGS_JSON_FORM_HPP
#define KELP_INPUT_QUILL_TOOL_FINDINGS_JSON_FORM_HPP

#include "quill-inp/findings/file_report.hpp"
#include "quill-inp/formats/json_writer.hpp"

namespace kelp::input::quill::tool {

/// Writes the findings of a file as one JSON text on one line: the file, and for each finding its
/// code, severity, group, place in bytes, line and column, words, facts, related places and mend.
/// At the end, the numbers of the findings that are not shown, by their code.
void write_json_form(const FileReport& report, const JsonWriter::Sink& sink);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_FINDINGS_JSON_FORM_HPP
