#ifndef KELP_INPUT_QUILL_LINT_EXPLANATIONS_HPP
#define KELP_INPUT_QUILL_LINT_EXPLANATIONS_HPP

#include <cstddef>
#include <vector>

#include "kelp/input/quill/lines.hpp"
#include "lint/finding.hpp"
#include "lint/rule.hpp"

namespace kelp::input::quill::lint {

/// For each line of a text, the rule whose findings explain all others on it. If several rules do,
/// that is the one of the writing group, which says more, and otherwise the one whose finding
/// begins first. Keeps a reference to the lines.
class Explanations {
 public:
  explicit Explanations(const std::vector<LineRecord>& lines) : lines_(lines) {}

  /// Notes a finding of a rule that explains a line.
  void note(const Rule& rule, const Finding& finding);

  /// Returns whether another rule explains the line of a finding. A finding about something that
  /// the text does not have is on no line.
  bool leave_out(const Finding& finding) const;

 private:
  struct Explanation {
    const Rule* rule = nullptr;
    std::size_t offset = 0;
  };

  std::size_t line_of(const Finding& finding) const;

  const std::vector<LineRecord>& lines_;
  std::vector<Explanation> by_line_ = {};  // empty as long as nothing is explained
};

}  // namespace kelp::input::quill::lint

#endif  // KELP_INPUT_QUILL_LINT_EXPLANATIONS_HPP
