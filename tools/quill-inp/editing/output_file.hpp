#ifndef KELP_INPUT_QUILL_TOOL_EDITING_OUTPUT_FILE_HPP
#define KELP_INPUT_QUILL_TOOL_EDITING_OUTPUT_FILE_HPP

#include <optional>
#include <string>
#include <string_view>

#include "quill-inp/command_line/arguments.hpp"
#include "quill-inp/session/session.hpp"

namespace kelp::input::quill::tool {

/// The file that a text goes to instead of standard output, if there is one.
struct OutputFile {
  std::optional<std::string> path = std::nullopt;
  bool may_be_replaced = false;
};

/// Add --output and --force to a verb, and read them. "-" is standard output. Reading throws
/// UsageError for --force alone.
void add_output_options(CLI::App& verb);
OutputFile read_output_file(const CLI::App& verb);

/// Writes a text to the file, as safely as in place, or to standard output. Throws ReportedTrouble
/// when the file cannot be written, which is reported under its name.
void write_output(Session& session, const OutputFile& output, std::string_view text);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_EDITING_OUTPUT_FILE_HPP
