#ifndef KELP_INPUT_QUILL_LINT_COLLECTOR_HPP
#define KELP_INPUT_QUILL_LINT_COLLECTOR_HPP

#include <cstddef>
#include <functional>
#include <utility>

#include "lint/finding.hpp"
#include "lint/rule.hpp"

namespace kelp::input::quill::lint {

/// Takes what a rule finds in a text. The first findings are kept, and the others are counted: in a
/// line of commas every byte can be a finding, and each takes a hundred times the memory of a byte.
class Collector {
 public:
  /// Returns whether a finding, which has its code, is taken.
  using Accept = std::function<bool(const Finding&)>;

  /// Keeps findings of this rule within the limits.
  Collector(const Rule& rule, const Limits& limits, Accept accept)
      : rule_(rule), limits_(limits), accept_(std::move(accept)) {}

  void add(Finding finding) {
    finding.code = rule_.code;
    if (!accept_(finding)) return;
    if (kept_.size() < limits_.findings) {
      kept_.push_back(std::move(finding));
    } else {
      ++more_;
    }
  }

  /// The largest number of edits that a finding may have. A rule leaves a mend with more edits out.
  std::size_t most_edits() const { return limits_.edits; }

  /// The findings that were kept, which may be moved from, and the number of the others.
  Findings& kept() { return kept_; }
  std::size_t more() const { return more_; }

 private:
  const Rule& rule_;
  Limits limits_;
  Accept accept_;
  Findings kept_ = {};
  std::size_t more_ = 0;
};

}  // namespace kelp::input::quill::lint

#endif  // KELP_INPUT_QUILL_LINT_COLLECTOR_HPP
