#include "lint/checks/checks.hpp"
#include "lint/header_line.hpp"

namespace kelp::input::quill::lint {

Findings check_nameless_entry(const Source& source) {
  Findings findings;
  for (std::size_t i = 0; i < source.command_lines().size(); ++i) {
    for (const ParameterPieces& entry : entries_of(pieces_of(source, i))) {
      if (entry.name.empty() && entry.value)
        findings.push_back({source.range_of(*entry.value), {text_fact("value", *entry.value)}});
    }
  }
  return findings;
}

}  // namespace kelp::input::quill::lint
