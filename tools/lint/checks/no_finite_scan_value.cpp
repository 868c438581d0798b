#include <cmath>

#include "lint/checks/checks.hpp"
#include "lint/tokens.hpp"

namespace kelp::input::quill::lint {

void check_no_finite_scan_value(const Source& source, Collector& findings) {
  for (std::size_t i = 0; i < source.post_lines().size(); ++i) {
    const PostCommand& scan = source.input().post_commands[i];
    if (!scan.scan_value || std::isfinite(*scan.scan_value)) continue;
    const std::string_view token =
        tokens_of(source.content(source.post_lines()[i]))[scan.atom_indices.size() + 1];
    findings.add({source.range_of(token), {text_fact("token", token)}});
  }
}

}  // namespace kelp::input::quill::lint
