#include <algorithm>

#include "lint/checks/checks.hpp"
#include "lint/header_line.hpp"
#include "lint/line_repair.hpp"
#include "model/task_names.hpp"

namespace kelp::input::quill::lint {

namespace {

/// Whether a task was meant, and another rule says what is wrong with it.
bool resembles_task(const HeaderCommand& command, const Options& options) {
  const std::string ascii = with_edits(command.name, ascii_edits(command.name));
  const std::string name = normalize_command_name(ascii);
  if (is_task_name(normalize_command_name(first_word(name)))) return true;
  const auto meant = meant_name(name, options);
  return meant && is_task_name(*meant);
}

bool is_late_task(const PostCommand& command) {
  const bool is_header = command.kind == PostCommandKind::Raw && command.raw_text.front() == '#';
  return is_header && is_task_name(normalize_command_name(first_word(command.raw_text)));
}

}  // namespace

void check_no_task(const Source& source, Collector& findings) {
  const QuillInput& input = source.input();
  if (input.has_task_command()) return;
  const auto is_like_one = [&](const HeaderCommand& command) {
    return resembles_task(command, source.options());
  };
  if (std::any_of(input.commands.begin(), input.commands.end(), is_like_one)) return;
  if (std::any_of(input.post_commands.begin(), input.post_commands.end(), is_late_task)) return;
  findings.add(Finding());
}

}  // namespace kelp::input::quill::lint
