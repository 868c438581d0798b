#ifndef KELP_INPUT_QUILL_LINT_SELECTION_HPP
#define KELP_INPUT_QUILL_LINT_SELECTION_HPP

#include <string>
#include <string_view>
#include <vector>

#include "lint/finding.hpp"
#include "lint/lint.hpp"

namespace kelp::input::quill::lint {

/// Which rules are selected. Names are codes or names of groups, in any letter case.
struct Selection {
  std::vector<std::string> selected = {};  // empty means all
  std::vector<std::string> ignored = {};   // has priority over `selected`
};

/// Returns whether a rule is selected.
bool is_selected(std::string_view code, const Selection& selection);

/// Returns whether a name is that of a rule or a group.
bool is_rule_or_group(std::string_view name);

/// Returns the codes of all rules and the names of all groups.
std::vector<std::string> rule_and_group_names();

/// Remove the findings of rules that are not selected, and their counts.
void keep_selected(Findings& findings, const Selection& selection);
void keep_selected(FirstFindings& first, const Selection& selection);

}  // namespace kelp::input::quill::lint

#endif  // KELP_INPUT_QUILL_LINT_SELECTION_HPP
