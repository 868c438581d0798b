#ifndef KELP_INPUT_QUILL_TOOL_COMMAND_LINE_ARGUMENTS_HPP
#define KELP_INPUT_QUILL_TOOL_COMMAND_LINE_ARGUMENTS_HPP

// Options and their values, exactly as they were typed.
//
//   constexpr Option model{"--model", "VALUE", "The model"};
//   add_value(verb, model);                 // before the command line is parsed
//   if (const auto value = value_of(verb, model)) use(*value);
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

/// An option or argument. It is added and read by the same constant.
struct Option {
  const char* names;        // "-q,--quiet", or "FILE" for an argument without dashes
  const char* placeholder;  // for the value in the help text; empty for what takes none
  const char* help;
};

/// Returns the long name of an option, "--quiet", or the name of an argument.
std::string name_of(const Option& option);

/// Returns the arguments in a form that CLI11 hands through. They hold no NUL bytes: the system
/// cannot pass any.
std::vector<std::string> marked_arguments(const std::vector<std::string>& arguments);

/// Returns an argument without its mark.
std::string unmarked(std::string argument);

/// Add an argument that must be there, one or more that must be there, and any number of them.
void add_argument(CLI::App& app, const Option& option);
void add_arguments(CLI::App& app, const Option& option);
void add_optional_arguments(CLI::App& app, const Option& option);

/// Add an option without a value, with one, with one or more in a row, and one that may be given
/// several times with one value each time.
void add_flag(CLI::App& app, const Option& option);
void add_value(CLI::App& app, const Option& option);
void add_values(CLI::App& app, const Option& option);
void add_repeated(CLI::App& app, const Option& option);

/// Adds an option whose value, if there is one, is part of the argument: "--backup=SUFFIX".
void add_attached_value(CLI::App& app, const Option& option);

/// What is added from here on is under this heading in the help text.
void begin_group(CLI::App& app, const std::string& heading);

/// Return whether an argument or option was given, its value if it was, and all of its values. All
/// throw UsageError when a flag has a value or an option for one value was given twice, and
/// std::logic_error for an option that was not added to the verb.
bool is_given(const CLI::App& app, const Option& option);
std::optional<std::string> value_of(const CLI::App& app, const Option& option);
std::vector<std::string> values_of(const CLI::App& app, const Option& option);

/// Returns the value of an option whose value is attached, `otherwise` when it was given without,
/// and nothing when it was not given.
std::optional<std::string> attached_value_of(const CLI::App& app, const Option& option,
                                             const std::string& otherwise);

/// One use of an option: its name, as name_of() gives it, and one value.
struct OptionUse {
  std::string name = {};
  std::string value = {};
};

/// Returns the uses of these options in the order in which they are on the command line.
std::vector<OptionUse> uses_in_order(const CLI::App& app, const std::vector<Option>& options);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_COMMAND_LINE_ARGUMENTS_HPP
