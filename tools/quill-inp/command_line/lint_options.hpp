#ifndef KELP_INPUT_QUILL_TOOL_COMMAND_LINE_LINT_OPTIONS_HPP
#define KELP_INPUT_QUILL_TOOL_COMMAND_LINE_LINT_OPTIONS_HPP

#include <optional>
#include <string>

#include "lint/selection.hpp"
#include "quill-inp/command_line/arguments.hpp"
#include "quill-inp/findings/fail_on.hpp"

namespace kelp::input::quill::tool {

/// The form in which findings are printed.
enum class FindingForm { Text, Json, Github, Sarif };

/// What the options of the verb lint say.
struct LintOptions {
  FindingForm form = FindingForm::Text;
  std::optional<FailOn> fail_on = std::nullopt;  // nothing if it was not given
  lint::Selection selection = {};
  bool tells_statistics = false;
};

/// Adds --format, --fail-on, --select, --ignore and --statistics to a verb.
void add_lint_options(CLI::App& verb);

/// Reads these options. Throws UsageError for values without a meaning.
LintOptions read_lint_options(const CLI::App& verb);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_COMMAND_LINE_LINT_OPTIONS_HPP
