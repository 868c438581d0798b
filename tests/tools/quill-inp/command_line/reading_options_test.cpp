#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/temporary_folder.hpp"
#include "tools/quill-inp/support/program.hpp"

namespace kelp::input::quill::tool {
namespace {

class VerbThatReads : public testing::TestWithParam<std::vector<std::string>> {};

INSTANTIATE_TEST_SUITE_P(Every, VerbThatReads,
                         testing::Values(std::vector<std::string>{"show"},
                                         std::vector<std::string>{"show", "--json"},
                                         std::vector<std::string>{"show", "--lines"},
                                         std::vector<std::string>{"get", "-k", "sp"},
                                         std::vector<std::string>{"get", "--json", "-k", "sp"},
                                         std::vector<std::string>{"json"}));

TEST_P(VerbThatReads, CountsWarningsOnlyWhenItIsStrict) {
  const TemporaryFolder folder;
  folder.write("good.qin", "#sp\n0 1\nHe 0 0 0\n");
  folder.write("odd.qin", "#sp\n0 1\nHe 0 0 0\n\nB 1 x\n");
  const auto outcome_of = [&](const std::vector<std::string>& words) {
    std::vector<std::string> arguments = GetParam();
    arguments.insert(arguments.end(), words.begin(), words.end());
    return run_in(folder.path(), arguments);
  };
  EXPECT_EQ(outcome_of({"--strict", "good.qin"}), outcome_of({"good.qin"}));
  Outcome expected = outcome_of({"odd.qin", "good.qin"});
  EXPECT_EQ(expected.code, 0);
  expected.code = 1;
  EXPECT_EQ(outcome_of({"--strict", "odd.qin", "good.qin"}), expected);
  EXPECT_EQ(outcome_of({"--strict", "-q", "odd.qin"}).code, 1);
  EXPECT_EQ(outcome_of({"--strict", "-q", "odd.qin", "none.qin"}).code, 2);
}

}  // namespace
}  // namespace kelp::input::quill::tool
