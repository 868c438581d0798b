#include <algorithm>

#include "lint/checks/checks.hpp"
#include "lint/tokens.hpp"

namespace kelp::input::quill::lint {

namespace {

bool has_section(const QuillInput& input) {
  return input.geometry.kind != GeometryKind::None || input.geometry.has_charge_and_multiplicity;
}

bool is_raw(const PostCommand& command) { return command.kind == PostCommandKind::Raw; }

/// Whether a line is meant for an input: an atom line in any form, or a line of a known kind.
bool has_line_of_an_input(const Source& source) {
  const auto& commands = source.input().post_commands;
  if (!std::all_of(commands.begin(), commands.end(), is_raw)) return true;
  return std::any_of(source.post_lines().begin(), source.post_lines().end(),
                     [&](std::size_t line) { return resembles_atom_line(source.content(line)); });
}

/// Lines of "#" are comments in many other languages, so a text with only such lines is not an
/// input.
bool has_known_command(const QuillInput& input) {
  return input.has_task_command() || input.has_command("model") || input.has_command("device");
}

bool is_other_text(const Source& source) {
  const QuillInput& input = source.input();
  if (has_section(input) || source.broken_line()) return false;
  if (input.commands.empty()) return true;
  return !has_known_command(input) && !input.post_commands.empty() && !has_line_of_an_input(source);
}

}  // namespace

void check_not_an_input(const Source& source, Collector& findings) {
  const bool is_script = source.text().substr(0, 2) == "#!";
  if (!is_script && !is_other_text(source)) return;
  findings.add({{0, is_script ? std::size_t{2} : 0}});
}

}  // namespace kelp::input::quill::lint
