#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "support/temporary_folder.hpp"
#include "tools/quill-inp/support/call.hpp"
#include "tools/quill-inp/support/files.hpp"
#include "tools/quill-inp/support/program.hpp"

namespace kelp::input::quill::tool {
namespace {

using Words = std::vector<std::string>;
using Tree = std::map<std::string, std::string>;

Tree tree(const std::string& folder) {
  Tree contents;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
    const std::string name = entry.path().string().substr(folder.size() + 1);
    contents[name] = entry.is_regular_file() ? content_of(entry.path().string()) : "a folder";
  }
  return contents;
}

std::string usage(const std::string& message) {
  return "quill-inp: error: " + message + "\nquill-inp: note: see 'quill-inp sweep --help'\n";
}

class SweepErrors : public testing::TestWithParam<Call> {};

const Call errors[] = {
    {"NoPattern",
     {"sweep", "water.qin", "model=[a,b]"},
     ended(2, "", usage("--output is required"))},
    {"NothingToVary",
     {"sweep", "water.qin", "-o", "a.qin"},
     ended(2, "", usage("nothing to vary"))},
    {"FramesOfNothing",
     {"sweep", "water.qin", "model=[a,b]", "-o", "{model}", "--frames"},
     ended(2, "", usage("--frames needs --atoms"))},
    {"TwoOfAName",
     {"sweep", "water.qin", "model=[a,b]", "opt.maxiter=[1,2]", "-o", "jobs/{model}.qin"},
     ended(2, "",
           usage("inputs 1 and 2 would both be 'jobs/a.qin'; name them by more fields, or by "
                 "{number}"))},
    {"ListsOfDifferentLengths",
     {"sweep", "water.qin", "model=[a,b]", "opt.maxiter=[1,2,3]", "--zip", "-o", "{number}"},
     ended(2, "", usage("--zip needs lists of the same length, not of 2 and 3 values"))},
    {"AKeyThatOnlyHasAnswers",
     {"sweep", "water.qin", "@formula=[a,b]", "-o", "jobs/{number}.qin"},
     ended(2, "",
           usage("'@formula' cannot be set to a value; use --atoms, --xyz or --trajectory"))},
    {"LinesInPlaceOfAKey",
     {"sweep", "water.qin", "@bonds=[1,2]", "-o", "jobs/{number}.qin"},
     ended(2, "",
           usage("'@bonds' cannot be set; 'unset' removes such lines, and 'add' adds them"))},
    {"ASettingAfterStructures",
     {"sweep", "water.qin", "-o", "{number}", "--atoms", "water.xyz", "model=[a,b]"},
     ended(
         2, "",
         usage("--atoms takes a path, but 'model=[a,b]' looks like a setting; put settings before "
               "the options or after '--', or write './model=[a,b]' for a path"))},
    {"NoTemplate",
     {"sweep", "none.qin", "model=[a,b]", "-o", "{number}"},
     ended(2, "", "none.qin: error: cannot be opened: No such file or directory\n")},
    {"AListThatIsNone",
     {"sweep", "water.qin", "model", "-o", "{number}"},
     ended(2, "", usage("expected KEY=[VALUE,...], not 'model'"))},
};

TEST_P(SweepErrors, WriteNothing) { expect_outcome(GetParam()); }

INSTANTIATE_TEST_SUITE_P(Table, SweepErrors, testing::ValuesIn(errors),
                         [](const auto& row) { return std::string(row.param.name); });

std::string water_with(const std::string& maxiter, const std::string& model) {
  std::string text = water;
  text.replace(text.find("m1"), 2, model);
  return text.replace(text.find("50"), 2, maxiter);
}

const Words sweep_of_two = {"sweep",         "water.qin", "opt.maxiter=[50,9]",
                            "model=[m1,m2]", "-o",        "jobs/{name}-{model}-{opt.maxiter}.qin",
                            "--manifest",    "jobs.tsv"};

TEST(Sweep, WritesTheProductAndAList) {
  const TemporaryFolder folder;
  folder.write("water.qin", water);
  EXPECT_EQ(run_in(folder.path(), sweep_of_two),
            ended(0, "", "quill-inp: note: 4 files, 4 written\n"));
  Tree files = tree(folder.path());
  const std::string list = files["jobs.tsv"];
  files.erase("jobs.tsv");
  EXPECT_EQ(files, (Tree{{"water.qin", water},
                         {"jobs", "a folder"},
                         {"jobs/water-m1-50.qin", water},
                         {"jobs/water-m2-50.qin", water_with("50", "m2")},
                         {"jobs/water-m1-9.qin", water_with("9", "m1")},
                         {"jobs/water-m2-9.qin", water_with("9", "m2")}}));
  EXPECT_EQ(run_shell(folder.path(), "cut -f 1,3- jobs.tsv").out,
            "file\topt.maxiter\tmodel\n"
            "jobs/water-m1-50.qin\t50\tm1\njobs/water-m2-50.qin\t50\tm2\n"
            "jobs/water-m1-9.qin\t9\tm1\njobs/water-m2-9.qin\t9\tm2\n");
  EXPECT_EQ(run_shell(folder.path(),
                      "tail -n +2 jobs.tsv | awk '{print $2 \"  \" $1}' | sha256sum --quiet -c")
                .code,
            0);
}

TEST(Sweep, WritesOnlyWhatIsMissingAndReplacesOnlyByForce) {
  const TemporaryFolder folder;
  folder.write("water.qin", water);
  ASSERT_EQ(run_in(folder.path(), sweep_of_two).code, 0);
  const Tree complete = tree(folder.path());
  EXPECT_EQ(run_in(folder.path(), sweep_of_two),
            ended(0, "", "quill-inp: note: 4 files, 0 written\n"));
  std::filesystem::remove(folder.path("jobs/water-m1-9.qin"));
  EXPECT_EQ(run_in(folder.path(), sweep_of_two),
            ended(0, "", "quill-inp: note: 4 files, 1 written\n"));
  EXPECT_EQ(tree(folder.path()), complete);

  folder.write("jobs/water-m2-9.qin", "mine");
  std::filesystem::remove(folder.path("jobs.tsv"));
  EXPECT_EQ(run_in(folder.path(), sweep_of_two),
            ended(2, "",
                  "jobs/water-m2-9.qin: error: exists already and holds another text; use --force "
                  "to replace it\nquill-inp: note: 4 files, 0 written, 1 refused\n"));
  EXPECT_EQ(content_of(folder.path("jobs/water-m2-9.qin")), "mine");
  EXPECT_FALSE(std::filesystem::exists(folder.path("jobs.tsv")));
  Words forced = sweep_of_two;
  forced.emplace_back("--force");
  EXPECT_EQ(run_in(folder.path(), forced), ended(0, "", "quill-inp: note: 4 files, 1 written\n"));
  EXPECT_EQ(tree(folder.path()), complete);
}

TEST(Sweep, OfZippedValuesWritesALineOfJsonForEach) {
  const TemporaryFolder folder;
  folder.write("water.qin", water);
  EXPECT_EQ(run_in(folder.path(), {"sweep", "water.qin", "opt.maxiter=[50,9]", "model=[m1,m2]",
                                   "--zip", "-q", "-o", "{number}", "--manifest=list.jsonl"}),
            ended(0, "", ""));
  EXPECT_EQ(content_of(folder.path("2")), water_with("9", "m2"));
  EXPECT_FALSE(std::filesystem::exists(folder.path("3")));
  const std::string list = content_of(folder.path("list.jsonl"));
  EXPECT_NE(list.find("\"values\": [{\"key\": \"opt.maxiter\", \"value\": \"9\"}, {\"key\": "
                      "\"model\", \"value\": \"m2\"}]}\n"),
            std::string::npos)
      << list;
}

TEST(Sweep, TakesEveryFrame) {
  const TemporaryFolder folder;
  folder.write("he.qin", "#sp\n0 1\nHe 0 0 0\n");
  folder.write("path.xyz", "1\na\nHe 0 0 1\n\n1\nb\nHe 0 0 2\n");
  EXPECT_EQ(run_in(folder.path(), {"sweep", "he.qin", "--frames", "-q", "-o", "{name}.{frame}.qin",
                                   "--atoms", "path.xyz"}),
            ended(0, "", ""));
  EXPECT_EQ(content_of(folder.path("path.2.qin")),
            "#sp\n0 1\nHe       0.000000      0.000000      2.000000\n");
  EXPECT_EQ(
      run_in(folder.path(), {"sweep", "he.qin", "-o", "{name}.{frame}.qin", "--atoms", "path.xyz"})
          .code,
      2);
  folder.write("path.xyz", "1\na\nHe 0 0 1\n1\nb\nHe 0 0 x\n");
  EXPECT_EQ(run_in(folder.path(),
                   {"sweep", "he.qin", "--frames", "-o", "{frame}", "--atoms", "path.xyz"}),
            ended(2, "", "path.xyz:6: error: expected an atom, a symbol and three coordinates\n"));
}

TEST(Sweep, RefusesAnInputThatWouldLoseSomethingAndWritesTheOthers) {
  const TemporaryFolder folder;
  folder.write("water.qin", water);
  EXPECT_EQ(
      run_in(folder.path(), {"sweep", "water.qin", "opt=[tight,loose]", "-o", "{number}"}),
      ended(2, "",
            "1: error: refused: the command 'opt' would lose its parameters; use --allow-loss "
            "to write it anyway\n"
            "2: error: refused: the command 'opt' would lose its parameters; use --allow-loss "
            "to write it anyway\n"
            "quill-inp: note: 2 files, 0 written, 2 refused\n"));
  EXPECT_EQ(names_in(folder.path()), Words{"water.qin"});
}

TEST(Sweep, ThatWasKilledLeavesNothingButWholeFilesAndIsCompletedByTheNextRun) {
  ASSERT_TRUE(use_memory_for_temporary_files());
  const std::string command =
      "quill-inp sweep -q water.qin \"opt.maxiter=[$(seq -s , 400)]\" -o 'jobs/{number}.qin' "
      "--manifest jobs.tsv -j2";
  const TemporaryFolder undisturbed;
  undisturbed.write("water.qin", water);
  ASSERT_EQ(run_shell(undisturbed.path(), command).code, 0);
  const Tree complete = tree(undisturbed.path());
  int incomplete = 0;
  for (int milliseconds = 5; milliseconds < 100; milliseconds += 5) {
    const TemporaryFolder folder;
    folder.write("water.qin", water);
    run_shell(folder.path(), "timeout -s KILL 0." + std::string(milliseconds < 10 ? "00" : "0") +
                                 std::to_string(milliseconds) + " " + command);
    for (const auto& [name, content] : tree(folder.path())) {
      const auto wanted = complete.find(name);
      ASSERT_NE(wanted, complete.end()) << name;
      EXPECT_EQ(content, wanted->second) << name;
    }
    incomplete += tree(folder.path()).size() < complete.size() ? 1 : 0;
    EXPECT_EQ(run_shell(folder.path(), command).code, 0);
    EXPECT_EQ(tree(folder.path()), complete);
  }
  EXPECT_GT(incomplete, 0);
}

}  // namespace
}  // namespace kelp::input::quill::tool
