// -o, for every verb that has it.

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "support/temporary_folder.hpp"
#include "tools/quill-inp/support/files.hpp"
#include "tools/quill-inp/support/program.hpp"

namespace kelp::input::quill::tool {
namespace {

using Words = std::vector<std::string>;

class OutputFile : public testing::TestWithParam<Words> {
 protected:
  /// Runs the verb for the canonical text of one command, with more words.
  Outcome run(const Words& more) const {
    Words words = GetParam();
    words.insert(words.end(), more.begin(), more.end());
    const bool is_json = words.front() == "from-json";
    return run_in(folder.path(), words,
                  is_json ? R"({"commands": [{"name": "sp", "kind": "flag"}],
                               "geometry": {"kind": "none", "charge": 0}})"
                          : "#sp\n\n0 1\n");
  }

  TemporaryFolder folder;
};

TEST_P(OutputFile, GetsWhatStandardOutputWouldGet) {
  const Outcome printed = run({});
  ASSERT_EQ(printed.code, 0);
  EXPECT_EQ(run({"-o", "new.qin"}), ended(0, "", ""));
  EXPECT_EQ(content_of(folder.path("new.qin")), printed.out);
  EXPECT_EQ(names_in(folder.path()), Words{"new.qin"});
  EXPECT_EQ(run({"-o", "-"}), printed);
  EXPECT_EQ(run({"--output=new.qin"}), ended(0, "", ""));
}

TEST_P(OutputFile, IsReplacedOnlyByForce) {
  const Outcome printed = run({});
  folder.write("old.qin", "mine\n");
  EXPECT_EQ(run({"-o", "old.qin"}),
            ended(2, "",
                  "old.qin: error: exists already and holds another text; use --force to replace "
                  "it\n"));
  EXPECT_EQ(content_of(folder.path("old.qin")), "mine\n");
  std::filesystem::permissions(folder.path("old.qin"), std::filesystem::perms(0640));
  std::filesystem::create_symlink("old.qin", folder.path("link.qin"));
  EXPECT_EQ(run({"-o", "link.qin", "--force"}), ended(0, "", ""));
  EXPECT_EQ(content_of(folder.path("old.qin")), printed.out);
  EXPECT_EQ(mode_of(folder.path("old.qin")), 0640U);
  EXPECT_TRUE(std::filesystem::is_symlink(folder.path("link.qin")));
  EXPECT_EQ(names_in(folder.path()), (Words{"link.qin", "old.qin"}));
}

TEST_P(OutputFile, IsNotMadeWhereItCannotBe) {
  EXPECT_EQ(run({"-o", "none/new.qin"}),
            ended(2, "",
                  "none/new.qin: error: the folder of the file cannot be opened: No such file or "
                  "directory\n"));
  EXPECT_EQ(run({"-o", "."}), ended(2, "", ".: error: exists already and is not a regular file\n"));
  std::filesystem::create_symlink("nowhere", folder.path("broken.qin"));
  EXPECT_EQ(run({"-o", "broken.qin", "--force"}).code, 2);
  EXPECT_EQ(names_in(folder.path()), Words{"broken.qin"});
}

INSTANTIATE_TEST_SUITE_P(Verbs, OutputFile,
                         testing::Values(Words{"fmt", "-"}, Words{"set", "-", "model=m1"},
                                         Words{"unset", "-", "sp"},
                                         Words{"add", "-", "--raw", "a b"}, Words{"from-json", "-"},
                                         Words{"new", "--task", "sp", "--charge", "0"}));

TEST(OutputFiles, GetTheRightsOfNewFiles) {
  const TemporaryFolder folder;
  Request request;
  request.arguments = {"new", "--task", "sp", "-q", "-o", "a.qin"};
  request.folder = folder.path();
  request.umask = 027;
  EXPECT_EQ(run_program(request), ended(0, "", ""));
  EXPECT_EQ(mode_of(folder.path("a.qin")), 0640U);
}

TEST(OutputFiles, AreNotMadeOfWhatIsRefused) {
  const TemporaryFolder folder;
  folder.write("water.qin", water);
  EXPECT_EQ(run_in(folder.path(), {"set", "water.qin", "opt=tight", "-o", "a.qin"}).code, 2);
  EXPECT_EQ(run_in(folder.path(), {"unset", "water.qin", "freq", "-o", "a.qin"}).code, 1);
  EXPECT_EQ(names_in(folder.path()), Words{"water.qin"});
}

TEST(OutputFiles, TakeOneTextAndNothingElse) {
  const TemporaryFolder folder;
  folder.write("a.qin", water);
  const std::string hint = "\nquill-inp: note: see 'quill-inp fmt --help'\n";
  EXPECT_EQ(run_in(folder.path(), {"fmt", "a.qin", "a.qin", "-o", "b.qin"}),
            ended(2, "", "quill-inp: error: --output takes the text of one FILE" + hint));
  EXPECT_EQ(run_in(folder.path(), {"fmt", "-r", ".", "-o", "b.qin"}),
            ended(2, "", "quill-inp: error: --output takes the text of one FILE" + hint));
  EXPECT_EQ(run_in(folder.path(), {"fmt", "a.qin", "--force"}),
            ended(2, "", "quill-inp: error: --force needs --output" + hint));
  for (const char* other : {"-i", "--diff", "--check"}) {
    EXPECT_EQ(
        run_in(folder.path(), {"fmt", "a.qin", "-o", "b.qin", other}),
        ended(2, "",
              "quill-inp: error: --output cannot be used with --in-place, --check and --diff" +
                  hint));
  }
  EXPECT_EQ(names_in(folder.path()), Words{"a.qin"});
}

}  // namespace
}  // namespace kelp::input::quill::tool
