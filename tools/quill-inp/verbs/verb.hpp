#ifndef KELP_INPUT_QUILL_TOOL_VERBS_VERB_HPP
#define KELP_INPUT_QUILL_TOOL_VERBS_VERB_HPP

// What the verbs of the program have in common. Each verb has its own file, which adds the verb to
// the program and carries it out.

#include <string>
#include <vector>

#include "quill-inp/batch/each_file.hpp"
#include "quill-inp/command_line/arguments.hpp"
#include "quill-inp/process/exit_code.hpp"
#include "quill-inp/process/trouble.hpp"
#include "quill-inp/session/session.hpp"

namespace kelp::input::quill::tool {

/// A verb: its part of the command line, and the action to carry out after that was read. `action`
/// throws UsageError for options that cannot be used together.
struct Verb {
  CLI::App* app = nullptr;
  ExitCode (*action)(Session&, const CLI::App&) = nullptr;
};

Verb add_show(CLI::App& program);
Verb add_fmt(CLI::App& program);
Verb add_get(CLI::App& program);
Verb add_set(CLI::App& program);
Verb add_unset(CLI::App& program);
Verb add_add(CLI::App& program);
Verb add_new(CLI::App& program);
Verb add_json(CLI::App& program);
Verb add_from_json(CLI::App& program);
Verb add_lint(CLI::App& program);
Verb add_check(CLI::App& program);
Verb add_explain(CLI::App& program);
Verb add_lsp(CLI::App& program);
Verb add_help(CLI::App& program);
Verb add_sweep(CLI::App& program);
Verb add_hash(CLI::App& program);
Verb add_diff(CLI::App& program);

/// Adds a verb to the program: its name, one line about it, and an example of its use.
CLI::App* add_verb(CLI::App& program, const std::string& name, const std::string& description,
                   const std::string& example);

/// Carries `action` out for every file that the arguments and options of a verb choose, see
/// for_each_file().
ExitCode for_chosen_files(Session& session, const CLI::App& app,
                          const std::vector<std::string>& arguments, const FileAction& action);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_VERBS_VERB_HPP
