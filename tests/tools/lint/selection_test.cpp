#include "lint/selection.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kelp::input::quill::lint {

namespace {

struct Row {
  std::string_view name;
  Selection selection;
  std::vector<std::string_view> codes;  // of QL101, QL104, QL601 and QL602
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }

const Row rows[] = {
    {"Everything", {}, {"QL101", "QL104", "QL601", "QL602"}},
    {"ACode", {{"QL104"}, {}}, {"QL104"}},
    {"ACodeInLowerCase", {{"ql104"}, {}}, {"QL104"}},
    {"AGroup", {{"Chemistry"}, {}}, {"QL601", "QL602"}},
    {"AGroupAndACode", {{"chemistry", "QL101"}, {}}, {"QL101", "QL601", "QL602"}},
    {"AllButAGroup", {{}, {"chemistry"}}, {"QL101", "QL104"}},
    {"AllButACode", {{}, {"ql601"}}, {"QL101", "QL104", "QL602"}},
    {"AGroupButOneOfItsCodes", {{"chemistry"}, {"QL602"}}, {"QL601"}},
    {"ACodeThatIsIgnoredAsWell", {{"QL101"}, {"geometry"}}, {}},
    {"APartOfACode", {{"QL10"}, {}}, {}},
};

class Selections : public testing::TestWithParam<Row> {};

TEST_P(Selections, KeepTheseRules) {
  Findings findings(4);
  const char* const codes[] = {"QL101", "QL104", "QL601", "QL602"};
  for (std::size_t i = 0; i < findings.size(); ++i) findings[i].code = codes[i];
  keep_selected(findings, GetParam().selection);
  std::vector<std::string_view> kept;
  for (const Finding& finding : findings) kept.push_back(finding.code);
  EXPECT_EQ(kept, GetParam().codes);
}

INSTANTIATE_TEST_SUITE_P(Table, Selections, testing::ValuesIn(rows),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(Selections, KnowTheNamesOfRulesAndGroups) {
  EXPECT_TRUE(is_rule_or_group("QL001"));
  EXPECT_TRUE(is_rule_or_group("ql602"));
  EXPECT_TRUE(is_rule_or_group("Post-Processing"));
  EXPECT_FALSE(is_rule_or_group("QL000"));
  EXPECT_FALSE(is_rule_or_group("chem"));
  EXPECT_FALSE(is_selected("QL000", Selection()));
  EXPECT_THAT(rule_and_group_names(), testing::Contains("QL104"));
  EXPECT_THAT(rule_and_group_names(), testing::Contains("writing"));
}

}  // namespace

}  // namespace kelp::input::quill::lint
