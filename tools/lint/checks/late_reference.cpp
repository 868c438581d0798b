#include <string>
#include <utility>

#include "lint/checks/checks.hpp"
#include "reader/coordinate_lines.hpp"

namespace kelp::input::quill::lint {

// After a trajectory, and after a line that prevented the coordinates from beginning, other rules
// say more.
void check_late_reference(const Source& source, Collector& findings) {
  const bool is_explained =
      source.broken_line() || source.input().geometry.kind == GeometryKind::XyzTrajectory;
  if (is_explained) return;
  std::string keyword;
  std::string path;
  for (const std::size_t line : source.post_lines()) {
    const std::string_view content = source.trimmed(line);
    if (!parse_xyz_reference(content, keyword, path)) continue;
    Finding finding{source.range_of(content), {text_fact("keyword", keyword)}};
    const std::string_view end = source.trimmed(source.post_lines().front());
    if (end.data() != content.data())
      finding.related.push_back({source.range_of(end), "the line that ended the coordinates"});
    findings.add(std::move(finding));
  }
}

}  // namespace kelp::input::quill::lint
