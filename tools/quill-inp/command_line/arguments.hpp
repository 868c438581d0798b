#ifndef KELP_INPUT_QUILL_TOOL_COMMAND_LINE_ARGUMENTS_HPP
#define KELP_INPUT_QUILL_TOOL_COMMAND_LINE_ARGUMENTS_HPP

// Options and their values, exactly as they were typed.
//
//   constexpr Option model{"--model", "VALUE", "The model"};
//   add_value(verb, model);                 // before the command line is parsed
//   if (const auto value = value_of(verb, model)) use(*value);
//
// CLI11 gives some arguments a special meaning: it takes "[a]" for a list, "++" for the end of a
// verb, and the next argument for the value of "--raw=". Files and values may have such names. So
// arguments are marked before CLI11 sees them, and the marks are removed from its results. These
// are read as text and never converted by CLI11.

#include <optional>
#include <string>
#include <vector>

namespace CLI {
class App;
}  // namespace CLI

namespace kelp::input::quill::tool {

/// An option or argument. The same constant is used to add it and to read it.
struct Option {
  const char* names;        // "-q,--quiet", or "FILE" for an argument without dashes
  const char* placeholder;  // for the value in the help text; empty if there is no value
  const char* help;
};

/// Returns the long name of an option, "--quiet", or the name of an argument.
std::string name_of(const Option& option);

/// Returns the arguments in a form that CLI11 does not change. They hold no NUL bytes: the system
/// cannot pass any.
std::vector<std::string> marked_arguments(const std::vector<std::string>& arguments);

/// Returns an argument without its mark.
std::string unmarked(std::string argument);

/// Add one required argument, one or more required arguments, and any number of arguments. An
/// argument that is missing can be given in another way for add_files() and add_first_file(): the
/// first takes any number of arguments, the second one, before those that are added after it.
void add_argument(CLI::App& app, const Option& option);
void add_files(CLI::App& app, const Option& option);
void add_first_file(CLI::App& app, const Option& option);
void add_arguments(CLI::App& app, const Option& option);
void add_optional_arguments(CLI::App& app, const Option& option);

/// Add an option without a value, with one value, with one or more values in a row, and an option
/// that may be given several times with one value each time.
void add_flag(CLI::App& app, const Option& option);
void add_value(CLI::App& app, const Option& option);
void add_values(CLI::App& app, const Option& option);
void add_repeated(CLI::App& app, const Option& option);

/// Adds an option whose value, if there is one, is part of the argument: "--backup=SUFFIX".
void add_attached_value(CLI::App& app, const Option& option);

/// Puts all options that are added after this call under a heading in the help text.
void begin_group(CLI::App& app, const std::string& heading);

/// Returns a complaint about the first option whose value looks like an option and was not attached
/// with "=": then the value was forgotten, and the next option was taken for the value. "-", "-1"
/// and "-.5" do not look like options.
std::optional<std::string> find_forgotten_value(const CLI::App& app);

/// Return whether an argument or option was given, its value if it was given, and all of its
/// values. They throw UsageError when a flag has a value or an option for one value was given
/// twice, and std::logic_error for an option that was not added to the verb.
bool is_given(const CLI::App& app, const Option& option);
std::optional<std::string> value_of(const CLI::App& app, const Option& option);
std::vector<std::string> values_of(const CLI::App& app, const Option& option);

/// Returns the value of an option that was added by add_attached_value(), `default_value` when it
/// was given without a value, and nothing when it was not given.
std::optional<std::string> attached_value_of(const CLI::App& app, const Option& option,
                                             const std::string& default_value);

/// One use of an option: its name, as name_of() gives it, and one value.
struct OptionUse {
  std::string name = {};
  std::string value = {};
};

/// Returns the uses of these options in the order in which they are on the command line.
std::vector<OptionUse> uses_in_order(const CLI::App& app, const std::vector<Option>& options);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_COMMAND_LINE_ARGUMENTS_HPP
