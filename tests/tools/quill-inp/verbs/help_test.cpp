#include <gtest/gtest.h>

#include <string>

#include "support/temporary_folder.hpp"
#include "tools/quill-inp/support/call.hpp"

namespace kelp::input::quill::tool {
namespace {

Outcome run(const std::vector<std::string>& arguments) {
  const TemporaryFolder folder;
  return run_in(folder.path(), arguments);
}

TEST(Help, OfTheProgramIsPrintedWithoutAVerb) {
  const Outcome expected = run({"--help"});
  EXPECT_EQ(expected.out.substr(0, 45), "Shows, formats and edits QUILL inputs. Every ");
  EXPECT_EQ(run({}), expected);
  EXPECT_EQ(run({"help"}), expected);
}

TEST(Help, OfAVerbIsWhatItsOptionPrints) {
  for (const char* verb : {"show", "from-json", "check", "help"})
    EXPECT_EQ(run({"help", verb}), run({verb, "--help"})) << verb;
}

TEST(Help, OfSeveralVerbsIsPartedByEmptyLines) {
  EXPECT_EQ(run({"help", "get", "set"}).out,
            run({"get", "--help"}).out + "\n" + run({"set", "--help"}).out);
}

TEST(Help, KnowsTheVerbsOnly) {
  EXPECT_EQ(run({"help", "get", "shwo"}),
            ended(2, "",
                  "quill-inp: error: unknown verb 'shwo'; did you mean 'show'?\n"
                  "quill-inp: note: see 'quill-inp help --help'\n"));
}

}  // namespace
}  // namespace kelp::input::quill::tool
