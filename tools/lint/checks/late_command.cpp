#include <algorithm>

#include "lint/checks/checks.hpp"

namespace kelp::input::quill::lint {

namespace {

/// The first line after the header; there is one, since the text has post-processing lines.
std::size_t line_after_header(const Source& source) {
  const auto& lines = source.lines();
  const auto line = std::find_if(lines.begin(), lines.end(), [](const LineRecord& record) {
    return record.role != LineRole::Blank && record.role != LineRole::Command;
  });
  return static_cast<std::size_t>(line - lines.begin());
}

}  // namespace

void check_late_command(const Source& source, Collector& findings) {
  if (source.post_lines().empty()) return;
  const std::string_view end = source.trimmed(line_after_header(source));
  for (const std::size_t line : source.post_lines()) {
    const std::string_view content = source.trimmed(line);
    if (content.front() != '#') continue;
    findings.add({source.range_of(content),
                  {text_fact("line", content)},
                  {{source.range_of(end), "the line that ended the header"}}});
  }
}

}  // namespace kelp::input::quill::lint
