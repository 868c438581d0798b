#include "quill-inp/sweep/value_list.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "quill-inp/process/trouble.hpp"

namespace kelp::input::quill::tool {
namespace {

using Texts = std::vector<std::string>;
using Numbers = std::vector<std::size_t>;

TEST(ValueList, IsReadFromASetting) {
  const struct {
    const char* text;
    const char* key;
    Texts values;
  } rows[] = {
      {"model=m1", "model", {"m1"}},
      {"model=[m1]", "model", {"m1"}},
      {"opt.maxiter=[50,100]", "opt.maxiter", {"50", "100"}},
      {"a=[b,,c]", "a", {"b", "", "c"}},
      {"a=[b,]", "a", {"b", ""}},
      {R"(a=[b\,c,d\\,e\f])", "a", {"b,c", "d\\", "e\\f"}},
      {"a=[[b],[c]]", "a", {"[b]", "[c]"}},
      {"a=[b", "a", {"[b"}},
      {"a=[", "a", {"["}},
      {"a=", "a", {""}},
      {"a= [b]", "a", {" [b]"}},
  };
  for (const auto& row : rows) {
    const ValueList list = parse_value_list(row.text);
    EXPECT_EQ(list.key_text, row.key) << row.text;
    EXPECT_EQ(list.values, row.values) << row.text;
  }
}

TEST(ValueList, HasAKeyAndAValue) {
  for (const char* text : {"", "model", "a=[]", "=[a]", "[a,b]"})
    EXPECT_THROW(parse_value_list(text), UsageError) << text;
}

TEST(Combinations, OfAProductChangeTheLastListFastest) {
  const Numbers lengths = {2, 1, 3};
  ASSERT_EQ(count_combinations(lengths, Combination::Product), 6U);
  std::vector<Numbers> all;
  for (std::size_t i = 0; i < 6; ++i) all.push_back(indices_of(i, lengths, Combination::Product));
  EXPECT_EQ(all, (std::vector<Numbers>{
                     {0, 0, 0}, {0, 0, 1}, {0, 0, 2}, {1, 0, 0}, {1, 0, 1}, {1, 0, 2}}));
}

TEST(Combinations, OfZippedListsGoInStep) {
  const Numbers lengths = {1, 3, 3};
  ASSERT_EQ(count_combinations(lengths, Combination::Zip), 3U);
  EXPECT_EQ(indices_of(2, lengths, Combination::Zip), (Numbers{0, 2, 2}));
  EXPECT_THROW(count_combinations({2, 3}, Combination::Zip), UsageError);
  EXPECT_THROW(count_combinations({3, 2}, Combination::Zip), UsageError);
}

TEST(Combinations, AreAtMostAMillion) {
  EXPECT_EQ(count_combinations({}, Combination::Product), 1U);
  EXPECT_EQ(count_combinations({1000, 1000}, Combination::Product), 1000000U);
  EXPECT_THROW(count_combinations({1000, 1001}, Combination::Product), UsageError);
}

}  // namespace
}  // namespace kelp::input::quill::tool
