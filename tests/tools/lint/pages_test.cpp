// Each rule has a page with an input that draws exactly this rule, and the same input mended, which
// draws none.

#include "lint/pages.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "lint/lint.hpp"
#include "lint/mending.hpp"
#include "tools/lint/marked_text.hpp"
#include "tools/lint/page_text.hpp"

namespace kelp::input::quill::lint {

inline void PrintTo(const Rule& rule, std::ostream* out) { *out << rule.code; }

namespace {

class PageOfARule : public testing::TestWithParam<Rule> {
 protected:
  std::string_view page() const { return page_of(GetParam().code); }
  std::string bad() const { return input_below(page(), "## Bad"); }
  std::string mended() const { return input_below(page(), "## Corrected"); }
};

std::vector<std::string> codes_of(const Findings& findings) {
  std::vector<std::string> codes;
  for (const Finding& finding : findings) codes.emplace_back(finding.code);
  return codes;
}

Findings findings_of(const std::string& text) {
  const lossless::ReadText read = lossless::read_text(text);
  return find_all(read, options_of_pages());
}

TEST_P(PageOfARule, HasItsTitleAndTheOtherHeadingsInTheirOrder) {
  const Rule& rule = GetParam();
  const std::string title = "# " + std::string(rule.code) + ": " + std::string(rule.title);
  EXPECT_THAT(headings_of(page()),
              testing::ElementsAre(title, "## Why the reader does this", "## Bad", "## Corrected",
                                   "## Is the correction safe"));
  EXPECT_EQ(page().substr(page().size() - 2), ".\n");
}

TEST_P(PageOfARule, ShowsABadInputWithFindingsOfThisRuleOnly) {
  EXPECT_THAT(codes_of(findings_of(bad())), testing::ElementsAre(GetParam().code))
      << with_marks(bad(), findings_of(bad()));
}

TEST_P(PageOfARule, ShowsAMendedInputWithoutFindings) {
  EXPECT_EQ(with_marks(mended(), findings_of(mended())), mended());
}

TEST_P(PageOfARule, SaysWhetherTheMendIsSafe) {
  const Findings findings = findings_of(bad());
  const bool is_mended =
      !findings.empty() && findings.front().mend && findings.front().mend->is_safe;
  if (is_mended) {
    const auto every = [](const Finding&) { return true; };
    EXPECT_EQ(mend(lossless::read_text(bad()), options_of_pages(), every).read.text, mended());
  }
  EXPECT_EQ(page().find("\nYes, `--fix` makes it.") != std::string_view::npos, is_mended);
}

INSTANTIATE_TEST_SUITE_P(Table, PageOfARule, testing::ValuesIn(all_rules()),
                         [](const auto& row) { return std::string(row.param.code); });

TEST(Pages, AreThereForRulesAlone) { EXPECT_EQ(page_of("QL000"), ""); }

}  // namespace

}  // namespace kelp::input::quill::lint
