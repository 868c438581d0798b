#ifndef KELP_INPUT_QUILL_TOOL_COMMAND_LINE_HELP_FORMATTER_HPP
#define KELP_INPUT_QUILL_TOOL_COMMAND_LINE_HELP_FORMATTER_HPP

#include <string>
#include <vector>

#include <CLI/App.hpp>
#include <CLI/Formatter.hpp>

namespace kelp::input::quill::tool {

/// Formats the help texts: what the program or verb does, how it is called, its arguments, options
/// and verbs, and its example.
class HelpFormatter : public CLI::Formatter {
 public:
  HelpFormatter();

  std::string make_help(const CLI::App* app, std::string name,
                        CLI::AppFormatMode mode) const override;
  std::string make_usage(const CLI::App* app, std::string name) const override;
  std::string make_group(std::string group, bool is_positional,
                         std::vector<const CLI::Option*> options) const override;
  std::string make_option_opts(const CLI::Option* option) const override;
  std::string make_option_usage(const CLI::Option* option) const override;
};

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_COMMAND_LINE_HELP_FORMATTER_HPP
