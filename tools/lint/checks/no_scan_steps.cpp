#include "lint/checks/checks.hpp"
#include "lint/tokens.hpp"

namespace kelp::input::quill::lint {

void check_no_scan_steps(const Source& source, Collector& findings) {
  for (std::size_t i = 0; i < source.post_lines().size(); ++i) {
    const std::optional<std::int32_t>& steps = source.input().post_commands[i].scan_steps;
    if (!steps || *steps > 0) continue;
    const std::string_view token = tokens_of(source.content(source.post_lines()[i])).back();
    findings.add({source.range_of(token), {text_fact("steps", token)}});
  }
}

}  // namespace kelp::input::quill::lint
