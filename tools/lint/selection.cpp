#include "lint/selection.hpp"

#include <algorithm>
#include <iterator>

#include "kelp/core/text.hpp"
#include "lint/rule.hpp"

namespace kelp::input::quill::lint {

namespace {

bool names_rule(const std::string& name, const Rule& rule) {
  return core::text::to_upper_copy(name) == rule.code ||
         core::text::to_lower_copy(name) == name_of(rule.group);
}

bool names_rule(const std::vector<std::string>& names, const Rule& rule) {
  return std::any_of(names.begin(), names.end(),
                     [&](const std::string& name) { return names_rule(name, rule); });
}

}  // namespace

bool is_selected(std::string_view code, const Selection& selection) {
  const Rule* rule = find_rule(code);
  if (rule == nullptr || names_rule(selection.ignored, *rule)) return false;
  return selection.selected.empty() || names_rule(selection.selected, *rule);
}

bool is_rule_or_group(std::string_view name) {
  const RuleTable rules = all_rules();
  return std::any_of(rules.begin(), rules.end(),
                     [&](const Rule& rule) { return names_rule(std::string(name), rule); });
}

std::vector<std::string> rule_and_group_names() {
  std::vector<std::string> names;
  for (const Rule& rule : all_rules()) names.emplace_back(rule.code);
  for (const Group group : all_groups()) names.emplace_back(name_of(group));
  return names;
}

void keep_selected(Findings& findings, const Selection& selection) {
  findings.erase(
      std::remove_if(findings.begin(), findings.end(),
                     [&](const Finding& finding) { return !is_selected(finding.code, selection); }),
      findings.end());
}

void keep_selected(FirstFindings& first, const Selection& selection) {
  keep_selected(first.findings, selection);
  for (auto entry = first.more.begin(); entry != first.more.end();)
    entry = is_selected(entry->first, selection) ? std::next(entry) : first.more.erase(entry);
}

}  // namespace kelp::input::quill::lint
