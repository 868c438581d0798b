#include "lint/explanations.hpp"

#include <algorithm>

#include "lint/lint.hpp"

namespace kelp::input::quill::lint {

void Explanations::note(const Rule& rule, const Finding& finding) {
  if (by_line_.empty()) by_line_.resize(std::max<std::size_t>(lines_.size(), 1));
  Explanation& known = by_line_[line_of(finding)];
  const std::size_t offset = finding.range.offset;
  const bool is_writing = rule.group == Group::Writing;
  const bool comes_first = known.rule == nullptr || is_writing ||
                           (known.rule->group != Group::Writing && offset < known.offset);
  if (comes_first) known = {&rule, offset};
}

bool Explanations::leave_out(const Finding& finding) const {
  if (by_line_.empty() || finding.range.end() == 0) return false;
  const Rule* rule = by_line_[line_of(finding)].rule;
  // Several findings of one rule on a line are about different places.
  return rule != nullptr && rule->code != finding.code;
}

std::size_t Explanations::line_of(const Finding& finding) const {
  return place_of(finding.range.offset, lines_).line - 1;
}

}  // namespace kelp::input::quill::lint
