#ifndef KELP_INPUT_QUILL_TOOL_COMMAND_LINE_READING_OPTIONS_HPP
#define KELP_INPUT_QUILL_TOOL_COMMAND_LINE_READING_OPTIONS_HPP

#include "kelp/input/quill/reader.hpp"
#include "quill-inp/command_line/arguments.hpp"
#include "quill-inp/process/exit_code.hpp"

namespace kelp::input::quill::tool {

/// What a verb does about the warnings of the reader.
enum class Warnings {
  DoNotCount,
  AreANo,  // the exit code is 1
};

/// Adds --strict to a verb that reads inputs and does not write any.
void add_reading_options(CLI::App& verb);

/// Returns what --strict says about warnings.
Warnings read_warnings_option(const CLI::App& verb);

/// Returns the exit code of an input that was read, as far as its warnings decide it.
ExitCode code_of(const ParseResult& result, Warnings warnings);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_COMMAND_LINE_READING_OPTIONS_HPP
