#include <string>

#include "lint/checks/checks.hpp"
#include "reader/coordinate_lines.hpp"

namespace kelp::input::quill::lint {

void check_extra_trajectory(const Source& source, Collector& findings) {
  if (source.input().geometry.kind != GeometryKind::XyzTrajectory) return;
  std::string keyword;
  std::string path;
  for (const std::size_t line : source.post_lines()) {
    const std::string_view content = source.trimmed(line);
    if (!parse_xyz_reference(content, keyword, path)) continue;
    Finding finding{source.range_of(content), {text_fact("keyword", keyword)}};
    if (!source.reference_lines().empty())
      finding.related.push_back(
          {source.range_of(source.trimmed(source.reference_lines().front())), "the trajectory"});
    findings.add(std::move(finding));
  }
}

}  // namespace kelp::input::quill::lint
