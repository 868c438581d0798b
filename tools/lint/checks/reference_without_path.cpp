#include "lint/checks/checks.hpp"

namespace kelp::input::quill::lint {

void check_reference_without_path(const Source& source, Collector& findings) {
  for (std::size_t i = 0; i < source.lines().size(); ++i) {
    const LineRecord& line = source.lines()[i];
    const bool is_reference =
        line.role == LineRole::XyzReference || line.role == LineRole::Trajectory;
    if (!is_reference || line.index) continue;
    const std::string_view keyword = source.trimmed(i);
    findings.add({source.range_of(keyword), {text_fact("keyword", keyword)}});
  }
}

}  // namespace kelp::input::quill::lint
