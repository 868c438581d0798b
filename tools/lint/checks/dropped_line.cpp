#include <utility>

#include "kelp/core/text.hpp"
#include "lint/checks/checks.hpp"
#include "lint/line_repair.hpp"
#include "lint/tokens.hpp"

namespace kelp::input::quill::lint {

namespace {

/// Whether the word may have a point: the value of a scan, which comes before its steps.
bool is_scan_value(const std::vector<std::string_view>& tokens, std::size_t index) {
  return core::text::to_upper_copy(tokens[0]) == "S" && index + 2 == tokens.size();
}

/// Returns the first word after the keyword that is not what it has to be.
std::string_view faulty_word(const std::vector<std::string_view>& tokens) {
  for (std::size_t i = 1; i < tokens.size(); ++i) {
    const bool fits = is_scan_value(tokens, i) ? is_number(tokens[i]) : is_integer(tokens[i]);
    if (!fits) return tokens[i];
  }
  return tokens.back();
}

}  // namespace

void check_dropped_line(const Source& source, Collector& findings) {
  for (std::size_t i = 0; i < source.lines().size(); ++i) {
    if (source.lines()[i].role != LineRole::Dropped) continue;
    const std::vector<std::string_view> tokens = tokens_of(source.content(i));
    const std::string_view word = faulty_word(tokens);
    Finding finding{source.range_of(word),
                    {text_fact("keyword", tokens[0]), text_fact("token", word)}};
    if (auto edits = post_repair(source.content(i), source.lines()[i].offset))
      finding.mend = Mend{std::move(*edits), true};
    findings.add(std::move(finding));
  }
}

}  // namespace kelp::input::quill::lint
