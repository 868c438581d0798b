#ifndef KELP_INPUT_QUILL_TOOL_EDITING_DELIVERY_HPP
#define KELP_INPUT_QUILL_TOOL_EDITING_DELIVERY_HPP

#include <chrono>
#include <string>
#include <string_view>

#include "kelp/input/quill/lossless/file_replacement.hpp"
#include "quill-inp/batch/file_choice.hpp"
#include "quill-inp/command_line/arguments.hpp"
#include "quill-inp/editing/output_file.hpp"
#include "quill-inp/process/exit_code.hpp"
#include "quill-inp/session/input_source.hpp"
#include "quill-inp/session/session.hpp"

namespace kelp::input::quill::tool {

/// Where the new text of a file goes.
struct Delivery {
  bool in_place = false;
  bool as_diff = false;
  bool as_check = false;  // only whether there is anything to change
  lossless::ReplaceOptions replace = {};
  std::chrono::seconds patience = std::chrono::seconds(60);  // with other programs
  OutputFile output = {};
};

/// Whether a verb has --check.
enum class CheckOption { Absent, Present };

/// Adds --in-place, --output, --force, --diff, --backup, --break-hard-links and --lock-timeout to a
/// verb, and --check if wanted.
void add_delivery_options(CLI::App& verb, CheckOption check = CheckOption::Absent);

/// Reads these options. Throws UsageError for options that cannot be used together.
Delivery read_delivery(const CLI::App& verb, CheckOption check = CheckOption::Absent);

/// Reads the input whose new text is to be delivered. Throws Trouble when that fails.
ReadInput read_for_delivery(Session& session, const std::string& argument,
                            const Delivery& delivery);

/// Throws UsageError if one file is to take the texts of several.
void require_one_text(const Delivery& delivery, const FileChoice& files);

/// Returns whether the old text of a file is needed for more than to tell that it is another one.
bool needs_old_text(const Delivery& delivery);

/// Delivers the new text of a file: prints it, writes it in place of the old one, or prints whether
/// and how it differs. The answer is "no" if it differs. The session notes a file that was changed.
/// Throws Trouble when that fails.
ExitCode deliver(Session& session, ReadInput& input, std::string_view new_text,
                 const Delivery& delivery);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_EDITING_DELIVERY_HPP
