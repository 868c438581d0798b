#include <vector>

#include "kelp/core/text.hpp"
#include "lint/checks/checks.hpp"

namespace kelp::input::quill::lint {

namespace {

bool is_blank(std::string_view text) { return core::text::split_whitespace(text).empty(); }

/// Returns the positions of the carriage returns in a line that have text after them on the line.
/// Those without such text end the line together with its line end, and are harmless.
std::vector<std::size_t> find_returns(std::string_view line) {
  std::vector<std::size_t> found;
  for (std::size_t at = line.find('\r'); at != std::string_view::npos; at = line.find('\r', at + 1))
    found.push_back(at);
  if (!found.empty() && is_blank(line.substr(found.front()))) found.clear();
  return found;
}

}  // namespace

Findings check_lone_carriage_return(const Source& source) {
  Findings findings;
  if (source.text().find('\r') == std::string_view::npos) return findings;
  for (const LineRecord& line : source.lines()) {
    const std::vector<std::size_t> found =
        find_returns(source.text().substr(line.offset, line.length));
    if (found.empty()) continue;
    Mend mend{{}, true};
    for (const std::size_t at : found) mend.edits.push_back({{line.offset + at, 1}, "\n"});
    findings.push_back(
        {mend.edits.front().range, {count_fact("count", found.size())}, {}, std::move(mend)});
  }
  return findings;
}

}  // namespace kelp::input::quill::lint
