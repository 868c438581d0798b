#ifndef KELP_INPUT_QUILL_TOOL_SUMMARY_SUMMARY_HPP
#define KELP_INPUT_QUILL_TOOL_SUMMARY_SUMMARY_HPP

#include <functional>
#include <string>
#include <string_view>

#include "kelp/input/quill/reader.hpp"
#include "quill-inp/formats/json_writer.hpp"

namespace kelp::input::quill::tool {

/// Takes a piece of a text.
using TextSink = std::function<void(std::string_view)>;

/// How to show a summary to a person.
struct SummaryStyle {
  bool is_colored = false;
  bool has_warnings = true;
};

/// Writes what a person wants to know about the input that was read from `name`: a line with the
/// name, and one line for each task, the model, the device, other commands, charge and
/// multiplicity, the geometry with its composition, each file, constraint, scan and raw line, and
/// each warning if they are wanted. Bytes that would control a terminal are escaped.
void write_summary_text(const std::string& name, const ParseResult& result,
                        const SummaryStyle& style, const TextSink& sink);

/// Writes the same as data: a JSON object on one line.
void write_summary_json(const std::string& name, const ParseResult& result,
                        const JsonWriter::Sink& sink);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_SUMMARY_SUMMARY_HPP
