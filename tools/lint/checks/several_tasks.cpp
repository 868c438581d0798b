#include "lint/checks/checks.hpp"
#include "lint/header_line.hpp"
#include "model/task_names.hpp"

namespace kelp::input::quill::lint {

void check_several_tasks(const Source& source, Collector& findings) {
  std::vector<std::size_t> tasks;
  for (std::size_t i = 0; i < source.command_lines().size(); ++i) {
    if (is_task_name(normalize_command_name(source.input().commands[i].name))) tasks.push_back(i);
  }
  if (tasks.size() < 2) return;
  findings.add({range_of_command(source, tasks[1]),
                {count_fact("count", tasks.size())},
                {{range_of_command(source, tasks[0]), "the first task"}}});
}

}  // namespace kelp::input::quill::lint
