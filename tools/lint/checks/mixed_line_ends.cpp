#include <algorithm>

#include "lint/checks/checks.hpp"

namespace kelp::input::quill::lint {

namespace {

constexpr std::size_t dos_length = 2;

}  // namespace

void check_mixed_line_ends(const Source& source, Collector& findings) {
  const auto& lines = source.lines();
  if (lines.empty() || lines.front().terminator_length == 0) return;
  const std::size_t usual = lines.front().terminator_length;
  const auto other = std::find_if(lines.begin(), lines.end(), [&](const LineRecord& line) {
    return line.terminator_length != 0 && line.terminator_length != usual;
  });
  if (other == lines.end()) return;
  const bool is_dos = other->terminator_length == dos_length;
  findings.add(
      {{other->offset + other->length, other->terminator_length},
       {text_fact("found", is_dos ? "CR LF" : "LF"), text_fact("usual", is_dos ? "LF" : "CR LF")}});
}

}  // namespace kelp::input::quill::lint
