#include <algorithm>

#include "lint/checks/checks.hpp"
#include "reader/header_pieces.hpp"

namespace kelp::input::quill::lint {

namespace {

/// Returns the position of the first carriage return in a line, or the end of the line if only
/// blanks come after it: then it ends the line together with the line end, and is harmless.
std::size_t find_return(std::string_view line) {
  const std::size_t at = std::min(line.find('\r'), line.size());
  return trimmed_view(line.substr(at)).empty() ? line.size() : at;
}

/// Ends a line at each carriage return of a text that begins at `base`.
Mend mend_of(std::string_view text, std::size_t base) {
  Mend mend{{}, true};
  for (std::size_t at = text.find('\r'); at != std::string_view::npos; at = text.find('\r', at + 1))
    mend.edits.push_back({{base + at, 1}, "\n"});
  return mend;
}

}  // namespace

void check_lone_carriage_return(const Source& source, Collector& findings) {
  if (source.text().find('\r') == std::string_view::npos) return;
  for (const LineRecord& line : source.lines()) {
    const std::string_view content = source.text().substr(line.offset, line.length);
    const std::size_t first = find_return(content);
    if (first == content.size()) continue;
    const auto count = static_cast<std::size_t>(std::count(content.begin(), content.end(), '\r'));
    Finding finding{{line.offset + first, 1}, {count_fact("count", count)}};
    if (count <= findings.most_edits()) finding.mend = mend_of(content, line.offset);
    findings.add(std::move(finding));
  }
}

}  // namespace kelp::input::quill::lint
