#include "lint/rule.hpp"

#include <algorithm>
#include <cstddef>
#include <iterator>

#include "kelp/core/text.hpp"

namespace kelp::input::quill::lint {

namespace {

constexpr std::string_view severity_names[] = {"info", "warning", "error"};
constexpr std::string_view group_names[] = {
    "file", "header", "geometry", "references", "post-processing", "writing", "chemistry"};

// Text after a list, the second of two equal names, a value without a name, a dropped line.
constexpr std::string_view codes_without_effect[] = {"QL202", "QL210", "QL211", "QL213", "QL301"};

}  // namespace

std::string_view name_of(Severity severity) {
  return severity_names[static_cast<std::size_t>(severity)];
}

std::string_view name_of(Group group) { return group_names[static_cast<std::size_t>(group)]; }

const std::vector<Group>& all_groups() {
  static const std::vector<Group> groups = {
      Group::File,           Group::Header,  Group::Geometry, Group::References,
      Group::PostProcessing, Group::Writing, Group::Chemistry};
  return groups;
}

bool points_at_text_without_effect(std::string_view code) {
  return std::find(std::begin(codes_without_effect), std::end(codes_without_effect), code) !=
         std::end(codes_without_effect);
}

const Rule* find_rule(std::string_view code) {
  const std::string wanted = core::text::to_upper_copy(code);
  const RuleTable rules = all_rules();
  const Rule* rule =
      std::find_if(rules.begin(), rules.end(), [&](const Rule& row) { return row.code == wanted; });
  return rule == rules.end() ? nullptr : rule;
}

}  // namespace kelp::input::quill::lint
