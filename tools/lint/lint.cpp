#include "lint/lint.hpp"

#include <algorithm>
#include <map>
#include <utility>

namespace kelp::input::quill::lint {

namespace {

bool comes_first(const Finding& left, const Finding& right) {
  return left.range.offset != right.range.offset ? left.range.offset < right.range.offset
                                                 : left.code < right.code;
}

Explains reach_of(const Finding& finding) { return find_rule(finding.code)->explains; }

/// Keeps the findings of the rule that explains the whole text, the first one in the order of the
/// codes. Returns whether there is one.
bool keep_only_explanation(Findings& findings) {
  std::string_view code;
  for (const Finding& finding : findings) {
    const bool is_first = code.empty() || finding.code < code;
    if (reach_of(finding) == Explains::Text && is_first) code = finding.code;
  }
  if (code.empty()) return false;
  findings.erase(std::remove_if(findings.begin(), findings.end(),
                                [&](const Finding& finding) { return finding.code != code; }),
                 findings.end());
  return true;
}

/// A finding about something that the text does not have is not on a line.
bool is_on_a_line(const Finding& finding) { return finding.range.end() > 0; }

/// Leaves out what a finding on the same line explains. If several on a line explain it, that of
/// the writing group, which says more, and otherwise the one that begins first is kept.
void leave_out_explained(Findings& findings, const std::vector<LineRecord>& lines) {
  std::map<std::size_t, const Rule*> explanations;
  const auto line_of = [&](const Finding& finding) {
    return place_of(finding.range.offset, lines).line;
  };
  for (const Finding& finding : findings) {
    if (reach_of(finding) != Explains::Line) continue;
    const Rule* rule = find_rule(finding.code);
    const auto [place, is_new] = explanations.emplace(line_of(finding), rule);
    if (!is_new && rule->group == Group::Writing) place->second = rule;
  }
  if (explanations.empty()) return;
  Findings kept;
  for (Finding& finding : findings) {
    const auto explanation = explanations.find(line_of(finding));
    // Several findings of one rule on a line are about different places.
    const bool is_kept = !is_on_a_line(finding) || explanation == explanations.end() ||
                         explanation->second->code == finding.code;
    if (is_kept) kept.push_back(std::move(finding));
  }
  findings = std::move(kept);
}

}  // namespace

Findings find_unexplained(const lossless::ReadText& read, const Options& options) {
  const Source source(read, options);
  Findings all;
  for (const Rule& rule : all_rules()) {
    for (Finding& finding : rule.check(source)) {
      finding.code = rule.code;
      all.push_back(std::move(finding));
    }
  }
  std::stable_sort(all.begin(), all.end(), comes_first);
  return all;
}

Findings find_all(const lossless::ReadText& read, const Options& options) {
  Findings findings = find_unexplained(read, options);
  if (!keep_only_explanation(findings)) leave_out_explained(findings, read.lines);
  return findings;
}

TextPlace place_of(std::size_t offset, const std::vector<LineRecord>& lines) {
  const auto after =
      std::upper_bound(lines.begin(), lines.end(), offset,
                       [](std::size_t at, const LineRecord& line) { return at < line.offset; });
  if (after == lines.begin()) return {};
  const LineRecord& line = *(after - 1);
  return {static_cast<std::size_t>(after - lines.begin()), offset - line.offset + 1};
}

}  // namespace kelp::input::quill::lint
