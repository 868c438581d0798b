#include "lint/wording.hpp"

#include <gtest/gtest.h>

namespace kelp::input::quill::lint {

namespace {

struct Row {
  std::string_view name;
  std::string_view pattern;
  std::vector<Fact> facts;
  std::string text;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }

const Row rows[] = {
    {"WordsWithoutAFact", "no task", {}, "no task"},
    {"Facts",
     "{a} and {b} and {c}",
     {text_fact("a", "x"), count_fact("b", 12), {"c", 0.00000012345}},
     "x and 12 and 1.2e-07"},
    {"AFactWithBracesIsNotFilledAgain", "'{a}'", {text_fact("a", "{a}[b]")}, "'{a}[b]'"},
    {"OneOfSomething", "{n|one is|{n} are} lost", {count_fact("n", 1)}, "one is lost"},
    {"SeveralOfSomething", "{n|one is|{n} are} lost", {count_fact("n", 2)}, "2 are lost"},
    {"NoneOfSomething", "{n|one|{n}|nothing} lost", {count_fact("n", 0)}, "nothing lost"},
    {"AnOptionalPartThatIsThere", "lost[: '{a}']", {text_fact("a", "x")}, "lost: 'x'"},
    {"AnOptionalPartThatIsNotThere", "lost[: '{a}']!", {}, "lost!"},
    {"AnOptionalPartForACountOfZero", "lost[; {n|one|{n}} more]", {count_fact("n", 0)}, "lost"},
    {"AnOptionalPartForACountOfThree",
     "lost[; {n|one|{n}} more]",
     {count_fact("n", 3)},
     "lost; 3 more"},
    {"AFactThatIsMissing", "lost {a}", {}, ""},
};

class Filled : public testing::TestWithParam<Row> {};

TEST_P(Filled, HasTheWordsOfItsFacts) {
  EXPECT_EQ(filled(GetParam().pattern, GetParam().facts), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Table, Filled, testing::ValuesIn(rows),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(WordsOfAFinding, AreThoseOfItsRule) {
  Finding finding{{}, {text_fact("name", "opt freq"), text_fact("word", "opt")}};
  finding.code = "QL205";
  EXPECT_EQ(words_of(finding).message,
            "this is one command named 'opt freq', not the command 'opt'");
  EXPECT_EQ(words_of(finding).advice,
            "write '#opt' and the rest as parameters in parentheses, or on a separate line");
  finding.code = "QL000";
  EXPECT_EQ(words_of(finding).message, "");
}

}  // namespace

}  // namespace kelp::input::quill::lint
