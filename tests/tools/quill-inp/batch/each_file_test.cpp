// Calls for many files, as a user makes them.

#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "support/temporary_folder.hpp"
#include "tools/quill-inp/support/files.hpp"
#include "tools/quill-inp/support/program.hpp"

namespace kelp::input::quill::tool {
namespace {

using Words = std::vector<std::string>;

/// Ninety files: of each three, one is canonical, one is not, and one is read with a warning and
/// cannot be formatted. Some are in a folder of their own, and the list names them all and two more
/// that are not there.
void write_files(const TemporaryFolder& folder) {
  const bool in_memory = use_memory_for_temporary_files();
  static_cast<void>(in_memory);
  std::filesystem::create_directory(folder.path("jobs"));
  std::filesystem::create_directory(folder.path("jobs/more"));
  const char* const texts[] = {water, "#Model=m1\r\n0 1\r\n", "#model=m1 \n#a(b) c\n0 1\n"};
  std::string list = "none.qin\n";
  for (int i = 0; i < 90; ++i) {
    const std::string name =
        (i % 10 == 0 ? "jobs/more/" : "jobs/") + std::to_string(100 + i) + ".qin";
    folder.write(name, texts[i % 3]);
    list += name + "\n";
    if (i == 40) list += "\n-\nnone too.qin\n-\n";
  }
  folder.write("list", list);
}

/// The content of every file below the folder, by its name.
std::map<std::string, std::string> tree(const std::string& folder) {
  std::map<std::string, std::string> contents;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
    if (entry.is_regular_file())
      contents[entry.path().string().substr(folder.size())] = content_of(entry.path().string());
  }
  return contents;
}

struct Result {
  Outcome outcome;
  std::map<std::string, std::string> files;
};

/// Runs the program for the files of the list, in a folder of their own. The shell puts both
/// streams into one, so that their order counts, too.
Result run_with(const Words& words, const std::string& threads) {
  const TemporaryFolder folder;
  write_files(folder);
  // A program that types this into a pipe would fail if the tool ends without reading it.
  folder.write("typed", "#model = m3\n0 1\n");
  std::string command = "quill-inp";
  for (const std::string& word : words) command += " '" + word + "'";
  Result result;
  result.outcome =
      run_shell(folder.path(), command + " --files-from=list <typed --jobs=" + threads);
  result.files = tree(folder.path());
  return result;
}

class EachFile : public testing::TestWithParam<Words> {};

TEST_P(EachFile, GivesTheSameForEveryNumberOfThreads) {
  const Result one = run_with(GetParam(), "1");
  EXPECT_NE(one.outcome.out.find("none too.qin: error: cannot be opened"), std::string::npos);
  EXPECT_NE(one.outcome.out.find("<stdin>: error: standard input "), std::string::npos);
  for (const char* threads : {"2", "8"}) {
    const Result several = run_with(GetParam(), threads);
    EXPECT_EQ(several.outcome, one.outcome);
    EXPECT_EQ(several.files, one.files);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Verbs, EachFile,
    testing::Values(Words{"show"}, Words{"show", "--lines"}, Words{"show", "--json"}, Words{"fmt"},
                    Words{"fmt", "--check"}, Words{"fmt", "--diff"}, Words{"fmt", "-i"},
                    Words{"get", "model", "@atoms"}, Words{"json"},
                    Words{"set", "device=gpu", "opt.maxiter=9"}, Words{"set", "-i", "device=gpu"},
                    Words{"unset", "-i", "--backup", "model"}, Words{"unset", "opt", "-i"},
                    Words{"add", "-i", "--bond", "1,2", "--raw", "a b"}));

/// So many that a thread takes several at once, and that the last time it takes fewer.
TEST(ManyFiles, OfWhichAThreadTakesSeveralComeInTheirOrder) {
  const TemporaryFolder folder;
  folder.write("a.qin", "#model = m1\n0 1\n");
  folder.write("b.qin", "#model = m2\n0 1\n");
  std::string list;
  std::string wanted;
  for (int i = 0; i < 1501; ++i) {
    const bool is_a = i * 7 % 11 < 5;
    list += is_a ? "a.qin\n" : "b.qin\n";
    wanted += is_a ? "a.qin:m1\n" : "b.qin:m2\n";
  }
  folder.write("list", list);
  for (const char* threads : {"-j1", "-j2", "-j3"}) {
    EXPECT_EQ(run_in(folder.path(), {"get", "--files-from=list", threads, "model"}),
              ended(0, wanted, ""))
        << threads;
  }
}

TEST(ManyFiles, AreCountedWhenTheyAreChanged) {
  const TemporaryFolder folder;
  write_files(folder);
  const Outcome changed = run_in(folder.path(), {"unset", "-i", "-r", "jobs", "opt", "-j4"});
  EXPECT_EQ(changed.code, 1);
  EXPECT_NE(changed.err.find("jobs/101.qin: note: no match for 'opt': no command 'opt'\n"),
            std::string::npos);
  const std::string counts = "quill-inp: note: 90 files, 30 changed, 60 without a match\n";
  ASSERT_GT(changed.err.size(), counts.size());
  EXPECT_EQ(changed.err.substr(changed.err.size() - counts.size()), counts);
  EXPECT_EQ(run_in(folder.path(), {"unset", "-i", "-q", "-r", "jobs", "opt", "-j4"}),
            ended(1, "", ""));
}

TEST(ManyFiles, AreAllFormattedButThoseThatWouldLoseSomething) {
  const TemporaryFolder folder;
  write_files(folder);
  const Outcome formatted = run_in(folder.path(), {"fmt", "-i", "-r", "jobs", "--jobs", "3"});
  EXPECT_EQ(formatted.code, 2);
  EXPECT_NE(formatted.err.find("\njobs/104.qin: note: changed\n"), std::string::npos);
  EXPECT_EQ(formatted.err.find("jobs/103.qin"), std::string::npos);
  EXPECT_NE(formatted.err.find("\nquill-inp: note: 90 files, 30 changed, 30 refused\n"),
            std::string::npos);
  EXPECT_EQ(content_of(folder.path("jobs/104.qin")), "#Model = m1\n\n0 1\n");
  EXPECT_EQ(content_of(folder.path("jobs/105.qin")), "#model=m1 \n#a(b) c\n0 1\n");
  for (const auto& [name, content] : tree(folder.path()))
    EXPECT_EQ(name.find("/."), std::string::npos) << name;
}

TEST(ManyFiles, AreTakenFromFolders) {
  const TemporaryFolder folder;
  folder.write("one.qin", "#model = m1\n0 1\n");
  std::filesystem::create_directories(folder.path("jobs/old"));
  folder.write("jobs/b.qin", "#model = m2\n0 1\n");
  folder.write("jobs/old/a.qin", "#model = m3\n0 1\n");
  folder.write("jobs/old/a.inp", "#model = m4\n0 1\n");
  EXPECT_EQ(run_in(folder.path(), {"get", "-r", "-k", "model", "jobs", "one.qin"}),
            ended(0, "jobs/b.qin:m2\njobs/old/a.qin:m3\none.qin:m1\n", ""));
  EXPECT_EQ(run_in(folder.path(), {"get", "-r", "jobs", "model", "--glob=*.inp", "--glob=b*"}),
            ended(0, "jobs/b.qin:m2\njobs/old/a.inp:m4\n", ""));
  EXPECT_EQ(run_in(folder.path(), {"get", "-r", "jobs", "model", "--glob=*.x", "--glob=*.y"}),
            ended(1, "", "jobs: note: no file in this folder matches '*.x' or '*.y'\n"));
  EXPECT_EQ(run_in(folder.path(), {"get", "jobs", "model"}).code, 2);
}

TEST(ManyFiles, AreTakenFromALine) {
  const TemporaryFolder folder;
  folder.write("a b.qin", "#model = m1\n0 1\n");
  folder.write("c\nd.qin", "#model = m2\n0 1\n");
  EXPECT_EQ(run_in(folder.path(), {"get", "--files-from=-", "model"}, "a b.qin\n\na b.qin"),
            ended(0, "a b.qin:m1\na b.qin:m1\n", ""));
  EXPECT_EQ(run_in(folder.path(), {"get", "--files-from=-", "-0", "model"},
                   std::string("a b.qin\0c\nd.qin\0", 16)),
            ended(0, "a b.qin:m1\nc\nd.qin:m2\n", ""));
  EXPECT_EQ(run_in(folder.path(), {"get", "--files-from=-", "model"}, ""), ended(0, "", ""));
  EXPECT_EQ(run_in(folder.path(), {"get", "--files-from=list", "model"}),
            ended(2, "", "list: error: cannot be opened: No such file or directory\n"));
}

TEST(ManyFiles, AreRefusedIfANameHoldsANulByte) {
  const TemporaryFolder folder;
  folder.write("a.qin", "#model = m1\n0 1\n");
  EXPECT_EQ(run_in(folder.path(), {"set", "-i", "-q", "--files-from=-", "model=m1"},
                   std::string("a.qin\na.qin\0x\n", 14)),
            ended(2, "", "a.qin\\x00x: error: a file name cannot hold a NUL byte\n"));
}

TEST(ManyFiles, AreTakenFromTheListThatAProgramPrints) {
  const TemporaryFolder folder;
  std::filesystem::create_directory(folder.path("jobs"));
  for (const char* name : {"a.qin", "jobs/b.qin"}) folder.write(name, "#model = m1\n0 1\n");
  const std::string command = "bash -c 'quill-inp get --files-from=<(printf \"a.qin\\njobs\\n\") ";
  EXPECT_EQ(run_shell(folder.path(), command + "-r model'"),
            ended(0, "a.qin:m1\njobs/b.qin:m1\n", ""));
  EXPECT_EQ(run_shell(folder.path(), command + "model'"),
            ended(2,
                  "a.qin:m1\n"
                  "jobs: error: is a folder; use --recursive to take the files in it\n",
                  ""));
}

TEST(ManyFiles, AreChangedOnceEachHoweverOftenTheyAreNamed) {
  for (const Words& words : {Words{"add", "-i", "--raw=x"}, Words{"add", "-i", "--raw=x", "-j4"}}) {
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder.path("jobs"));
    for (const char* name : {"a.qin", "jobs/b.qin"}) folder.write(name, "0 1\n");
    std::filesystem::create_symlink("a.qin", folder.path("link.qin"));
    Words arguments = words;
    for (const char* name :
         {"a.qin", "jobs", "./a.qin", "link.qin", "jobs/b.qin", "none.qin", "none.qin", "-r"})
      arguments.emplace_back(name);
    const std::string none = "none.qin: error: cannot be opened: No such file or directory\n";
    EXPECT_EQ(
        run_in(folder.path(), arguments),
        ended(2, "",
              "a.qin:2: note: added, up to line 3\njobs/b.qin:2: note: added, up to line 3\n" +
                  none + none + "quill-inp: note: 4 files, 2 changed, 2 refused\n"));
    EXPECT_EQ(content_of(folder.path("a.qin")), "0 1\n\nx\n");
    EXPECT_EQ(content_of(folder.path("jobs/b.qin")), "0 1\n\nx\n");
  }
}

TEST(ManyFiles, AreOneForEveryVerbThatWritesInPlace) {
  const TemporaryFolder folder;
  folder.write("a.qin", "#Model=m1\r\n0 1\n");
  const std::string path = folder.path();
  EXPECT_EQ(run_in(path, {"lint", "--fix", "-q", "--format=json", "a.qin", "./a.qin"}).out,
            run_in(path, {"lint", "--fix", "-q", "--format=json", "a.qin"}).out);
  EXPECT_EQ(run_in(path, {"fmt", "a.qin", "a.qin"}).out,
            "#Model = m1\n\n0 1\n#Model = m1\n\n0 1\n");
  EXPECT_EQ(run_in(path, {"fmt", "-i", "a.qin", "./a.qin"}),
            ended(0, "", "a.qin: note: changed\n"));
}

TEST(ManyFiles, ThatAreHardLinksAreSeveral) {
  const TemporaryFolder folder;
  folder.write("a.qin", "#Model=m1\n");
  std::filesystem::create_hard_link(folder.path("a.qin"), folder.path("b.qin"));
  EXPECT_EQ(run_in(folder.path(), {"fmt", "-i", "-q", "--break-hard-links", "a.qin", "b.qin"}),
            ended(0, "", ""));
  EXPECT_EQ(content_of(folder.path("a.qin")), "#Model = m1\n");
  EXPECT_EQ(content_of(folder.path("b.qin")), "#Model = m1\n");
}

TEST(ManyFiles, AreNamedInAnswersUnlessOneIsAskedForByName) {
  const TemporaryFolder folder;
  folder.write("a.qin", "#model = m1\n0 1\nH 0 0 1\nH 0 0 2\n");
  const std::string path = folder.path();
  EXPECT_EQ(run_in(path, {"get", "a.qin", "model"}), ended(0, "m1\n", ""));
  EXPECT_EQ(run_in(path, {"get", "a.qin", "-k", "model"}), ended(0, "m1\n", ""));
  EXPECT_EQ(run_in(path, {"get", "a.qin", "a.qin", "-k", "model", "--no-filename"}),
            ended(0, "m1\nm1\n", ""));
  EXPECT_EQ(run_in(path, {"get", "--with-filename", "a.qin", "@atoms"}),
            ended(0, "a.qin:H 0 0 1\na.qin:H 0 0 2\n", ""));
}

TEST(ManyFiles, MayComeAfterOneAnotherAndBeforeOrAfterSettings) {
  const TemporaryFolder folder;
  for (const char* name : {"a.qin", "b.qin", "c=d"}) folder.write(name, "#model = m1\n0 1\n");
  const std::string path = folder.path();
  EXPECT_EQ(run_in(path, {"set", "-i", "-q", "c=d", "b.qin", "model=m2", "a.qin"}),
            ended(0, "", ""));
  for (const char* name : {"a.qin", "b.qin", "c=d"})
    EXPECT_EQ(content_of(folder.path(name)), "#model = m2\n0 1\n");
  EXPECT_EQ(run_in(path, {"set", "-i", "-q", "-r", "model=m3", "."}), ended(0, "", ""));
  folder.write("empty", "");
  EXPECT_EQ(content_of(folder.path("b.qin")), "#model = m3\n0 1\n");
  EXPECT_EQ(
      run_in(path, {"set", "-q", "model=m4", "-", "--files-from=empty"}, "#model = m1\n0 1\n"),
      ended(0, "#model = m4\n0 1\n", ""));
  EXPECT_EQ(run_in(path, {"set", "-i", "-q", "model=m5", "--files-from=-"}, "c=d\n"),
            ended(0, "", ""));
  EXPECT_EQ(content_of(folder.path("c=d")), "#model = m5\n0 1\n");
}

}  // namespace
}  // namespace kelp::input::quill::tool
