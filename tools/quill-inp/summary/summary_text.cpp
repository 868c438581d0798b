#include <cstddef>
#include <string_view>

#include "kelp/input/quill/lossless/quoting.hpp"
#include "kelp/input/quill/writer.hpp"
#include "quill-inp/summary/command_roles.hpp"
#include "quill-inp/summary/part_words.hpp"
#include "quill-inp/summary/summary.hpp"
#include "quill-inp/text/colors.hpp"
#include "quill-inp/text/terminal_text.hpp"
#include "reader/diagnostics.hpp"

namespace kelp::input::quill::tool {

namespace {

constexpr std::size_t label_width = 14;

/// Writes rows of a label and a text.
class Rows {
 public:
  Rows(bool is_colored, const TextSink& sink) : is_colored_(is_colored), sink_(sink) {}

  void add(std::string_view label, std::string_view text, std::string_view color = label_color) {
    std::string row = "  ";
    row += colored(label, color, is_colored_);
    row.append(label_width - label.size(), ' ');
    row += shown_on_one_line(text);
    row += '\n';
    sink_(row);
  }

 private:
  bool is_colored_;
  const TextSink& sink_;
};

/// Returns a command as it would be in a file, with quotes where they are needed.
std::string header_line(const HeaderCommand& command) {
  return to_string(lossless::quote(command).command);
}

void add_commands(Rows& rows, const QuillInput& input) {
  const CommandRoles roles = sort_commands(input);
  for (const HeaderCommand* task : roles.tasks) rows.add("task", header_line(*task).substr(1));
  if (roles.model) rows.add("model", *roles.model);
  if (roles.device) rows.add("device", *roles.device);
  for (const HeaderCommand* command : roles.others) rows.add("command", header_line(*command));
}

void add_geometry(Rows& rows, const GeometryBlock& geometry) {
  if (geometry.has_charge_and_multiplicity) {
    rows.add("charge", std::to_string(geometry.charge));
    rows.add("multiplicity", std::to_string(geometry.multiplicity));
  }
  rows.add("geometry", content_words(geometry));
  for (const std::string& path : geometry.xyz_files) rows.add("file", path);
}

std::string_view label_of(PostCommandKind kind) {
  switch (kind) {
    case PostCommandKind::Scan:
      return "scan";
    case PostCommandKind::PostFile:
      return "post file";
    case PostCommandKind::Raw:
      return "raw line";
    default:
      return "constraint";
  }
}

void add_warning(Rows& rows, const DiagnosticParts& warning) {
  const std::string place =
      warning.line ? "line " + std::to_string(*warning.line) + ": " : std::string();
  rows.add("warning", place + std::string(warning.message), warning_color);
}

}  // namespace

void write_summary_text(const std::string& name, const ParseResult& result,
                        const SummaryStyle& style, const TextSink& sink) {
  sink(colored(shown_on_one_line(name), name_color, style.is_colored) + "\n");
  Rows rows(style.is_colored, sink);
  add_commands(rows, result.input);
  add_geometry(rows, result.input.geometry);
  for (const PostCommand& command : result.input.post_commands)
    rows.add(label_of(command.kind), content_words(command));
  if (!style.has_warnings) return;
  for (const std::string& warning : result.warnings) add_warning(rows, split_diagnostic(warning));
}

}  // namespace kelp::input::quill::tool
