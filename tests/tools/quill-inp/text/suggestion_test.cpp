#include "quill-inp/text/suggestion.hpp"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kelp::input::quill::tool {
namespace {

struct Row {
  std::string_view name;
  std::string_view word;
  std::vector<std::string> names;
  std::optional<std::string> nearest;
};

class NearestName : public testing::TestWithParam<Row> {};

const Row rows[] = {
    {"NoNames", "show", {}, std::nullopt},
    {"TheNameItself", "show", {"show"}, "show"},
    {"ALetterChanged", "shaw", {"show"}, "show"},
    {"ALetterLeftOut", "sow", {"show"}, "show"},
    {"ALetterTooMany", "shoow", {"show"}, "show"},
    {"TwoLettersSwapped", "shwo", {"show"}, "show"},
    {"TwoSlipsInFourLetters", "shxx", {"show"}, std::nullopt},
    {"TwoSlipsInSevenLetters", "maxitre", {"maxiter"}, "maxiter"},
    {"ThreeSlipsInSevenLetters", "maxixxx", {"maxiter"}, std::nullopt},
    {"LetterCaseIsNotAMistake", "MODEL", {"Model"}, "Model"},
    {"TheNearestOfSeveral", "unst", {"set", "unset"}, "unset"},
    {"TheFirstOfEquallyNear", "ab", {"ac", "ad"}, "ac"},
    {"OneLetterIsLikeNoOther", "a", {"b"}, std::nullopt},
    {"OneLetterIsLikeItself", "a", {"a"}, "a"},
    {"AShortNameIsLikeAShortWord", "op", {"opt"}, "opt"},
    {"ALongWordIsNotLikeAShortName", "oooopt", {"opt"}, std::nullopt},
    {"NoWord", "", {"a"}, std::nullopt},
    {"AnEmptyNameIsNeverSuggested", "a", {""}, std::nullopt},
};

TEST_P(NearestName, IsTheOneProbablyWanted) {
  EXPECT_EQ(nearest_name(GetParam().word, GetParam().names), GetParam().nearest);
}

INSTANTIATE_TEST_SUITE_P(Table, NearestName, testing::ValuesIn(rows),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(NearestName, IsNotLookedForWhereNobodyTyped) {
  const std::string long_word(65, 'a');
  EXPECT_EQ(nearest_name(long_word, {long_word}), std::nullopt);
  EXPECT_EQ(nearest_name(std::string(64, 'a'), {std::string(64, 'a'), "b"}), std::string(64, 'a'));
  EXPECT_EQ(nearest_name(std::string(64, 'a'), {long_word}), std::nullopt);
}

TEST(Suggestion, IsASentenceOrNothing) {
  EXPECT_EQ(suggestion("shwo", {"show"}), "; did you mean 'show'?");
  EXPECT_EQ(suggestion("xyz", {"show"}), "");
}

}  // namespace
}  // namespace kelp::input::quill::tool
