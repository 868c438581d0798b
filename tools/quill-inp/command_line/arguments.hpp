#ifndef KELP_INPUT_QUILL_TOOL_COMMAND_LINE_ARGUMENTS_HPP
#define KELP_INPUT_QUILL_TOOL_COMMAND_LINE_ARGUMENTS_HPP

// Options and their values, exactly as they were typed.
//
// CLI11 gives some arguments a meaning of its own: it takes "[a]" for a list, "++" for the end of a
// verb, and the next argument for the value of "--raw=". Files and values may have such names, so
// arguments are marked before it sees them, and the marks are taken off its results, which are read
// as text and never converted by it.

#include <optional>
#include <string>
#include <vector>

namespace CLI {
class App;
}  // namespace CLI

namespace kelp::input::quill::tool {

/// Returns the arguments in a form that CLI11 hands through. They hold no NUL bytes: the system
/// cannot pass any.
std::vector<std::string> marked_arguments(const std::vector<std::string>& arguments);

/// Returns an argument without its mark.
std::string unmarked(std::string argument);

/// Add an argument that must be there, one or more that must be there, and any number of them.
void add_argument(CLI::App& app, const std::string& name, const std::string& help);
void add_arguments(CLI::App& app, const std::string& name, const std::string& help);
void add_optional_arguments(CLI::App& app, const std::string& name, const std::string& help);

/// Add an option without a value, with one, and with one or more in a row. `names` are as CLI11
/// takes them, "-q,--quiet"; `placeholder` stands for the value in the help text.
void add_flag(CLI::App& app, const std::string& names, const std::string& help);
void add_value(CLI::App& app, const std::string& names, const std::string& placeholder,
               const std::string& help);
void add_values(CLI::App& app, const std::string& names, const std::string& placeholder,
                const std::string& help);

/// Adds an option that may be given several times, with one value each time.
void add_repeated(CLI::App& app, const std::string& names, const std::string& placeholder,
                  const std::string& help);

/// Adds an option whose value, if there is one, is part of the argument: "--backup=SUFFIX".
void add_attached_value(CLI::App& app, const std::string& name, const std::string& placeholder,
                        const std::string& help);

/// What is added from here on stands in the help text under this heading.
void begin_group(CLI::App& app, const std::string& heading);

/// Return whether an argument or option was given, its value if it was, and all of its values. An
/// option that the verb does not have was not given.
bool is_given(const CLI::App& app, const std::string& name);
std::optional<std::string> value_of(const CLI::App& app, const std::string& name);
std::vector<std::string> values_of(const CLI::App& app, const std::string& name);

/// Returns the value of an option whose value is attached, `otherwise` when it was given without,
/// and nothing when it was not given.
std::optional<std::string> attached_value_of(const CLI::App& app, const std::string& name,
                                             const std::string& otherwise);

/// One use of an option: its name with the dashes, and one value.
struct OptionUse {
  std::string name = {};
  std::string value = {};
};

/// Returns the uses of these options in the order in which they stand on the command line.
std::vector<OptionUse> uses_in_order(const CLI::App& app, const std::vector<std::string>& names);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_COMMAND_LINE_ARGUMENTS_HPP
