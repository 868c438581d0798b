#include "lint/lint.hpp"

#include <algorithm>
#include <iterator>
#include <limits>
#include <utility>
#include <vector>

#include "lint/collector.hpp"
#include "lint/explanations.hpp"

namespace kelp::input::quill::lint {

namespace {

constexpr std::size_t endless = std::numeric_limits<std::size_t>::max();
constexpr Limits no_limits{endless, endless};

bool comes_first(const Finding& left, const Finding& right) {
  return left.range.offset != right.range.offset ? left.range.offset < right.range.offset
                                                 : left.code < right.code;
}

bool takes_all(const Finding& /*finding*/) { return true; }

/// Adds what a rule finds to the other findings. Returns whether it finds anything.
bool collect(const Rule& rule, const Source& source, const Limits& limits, Collector::Accept accept,
             FirstFindings& first) {
  Collector collector(rule, limits, std::move(accept));
  rule.check(source, collector);
  std::move(collector.kept().begin(), collector.kept().end(), std::back_inserter(first.findings));
  if (collector.more() > 0) first.more.emplace(rule.code, collector.more());
  return !collector.kept().empty() || collector.more() > 0;
}

/// A rule that explains the whole text leaves nothing for the others to find.
bool collect_explanation_of_text(const Source& source, const Limits& limits, FirstFindings& first) {
  const RuleTable rules = all_rules();
  return std::any_of(rules.begin(), rules.end(), [&](const Rule& rule) {
    return rule.explains == Explains::Text && collect(rule, source, limits, takes_all, first);
  });
}

/// Returns what is explained on each line, and in `silent` the rules that find nothing for it.
Explanations explain_lines(const Source& source, std::vector<const Rule*>& silent) {
  Explanations explanations(source.lines());
  for (const Rule& rule : all_rules()) {
    if (rule.explains != Explains::Line) continue;
    bool is_silent = true;
    Collector collector(rule, {}, [&](const Finding& finding) {
      explanations.note(rule, finding);
      is_silent = false;
      return false;
    });
    rule.check(source, collector);
    if (is_silent) silent.push_back(&rule);
  }
  return explanations;
}

void collect_unexplained(const Source& source, const Limits& limits, FirstFindings& first) {
  std::vector<const Rule*> silent;  // in the order of the table
  const Explanations explanations = explain_lines(source, silent);
  for (const Rule& rule : all_rules()) {
    const bool is_silent = std::binary_search(silent.begin(), silent.end(), &rule);
    if (rule.explains == Explains::Text || is_silent) continue;
    collect(
        rule, source, limits,
        [&](const Finding& finding) { return !explanations.leave_out(finding); }, first);
  }
}

}  // namespace

FirstFindings find_first(const lossless::ReadText& read, const Options& options,
                         const Limits& limits) {
  const Source source(read, options);
  FirstFindings first;
  if (!collect_explanation_of_text(source, limits, first))
    collect_unexplained(source, limits, first);
  std::stable_sort(first.findings.begin(), first.findings.end(), comes_first);
  return first;
}

Findings find_all(const lossless::ReadText& read, const Options& options) {
  return find_first(read, options, no_limits).findings;
}

Findings find_unexplained(const lossless::ReadText& read, const Options& options) {
  const Source source(read, options);
  FirstFindings all;
  for (const Rule& rule : all_rules()) collect(rule, source, no_limits, takes_all, all);
  std::stable_sort(all.findings.begin(), all.findings.end(), comes_first);
  return std::move(all.findings);
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
