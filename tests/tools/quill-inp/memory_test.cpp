// Calls that run out of memory, at every single allocation that is made for a file: for this
// allocation alone, and for good.

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "support/temporary_folder.hpp"
#include "tools/quill-inp/support/files.hpp"
#include "tools/quill-inp/support/metered_call.hpp"

namespace kelp::input::quill::tool {
namespace {

using Names = std::vector<std::string>;

TEST(OutOfMemory, ForOneFileStopsNoOther) {
  const std::string input = "#a(b, c=d, e=f)\n\n0 1\n";
  const TemporaryFolder folder;
  const std::vector<std::pair<std::string, std::string>> files = {
      {"<stdin>", input},
      {folder.write("b.qin", "#b(c=d)\n\n0 2\n"), "#b(c=d)\n\n0 2\n"},
      {folder.write("c.qin", "#e = f\n\nXYZ g\n"), "#e = f\n\nXYZ g\n"}};
  const std::vector<std::string> arguments = {"fmt", "-", folder.path("b.qin"),
                                              folder.path("c.qin")};
  const MeteredCall undisturbed = run_failing(arguments, input, 0);
  ASSERT_EQ(undisturbed.code, 0);
  std::map<std::string, std::string> outputs = {{"", undisturbed.out}};
  for (const auto& [file, ignored] : files) {
    std::string& output = outputs[file + ": error: out of memory\n"];
    for (const auto& [other, text] : files) output += other == file ? "" : text;
  }

  std::map<std::string, int> times;
  for (std::uint64_t i = undisturbed.allocations_before + 1; i <= undisturbed.allocations; ++i) {
    const MeteredCall call = run_failing(arguments, input, i);
    ASSERT_EQ(outputs.count(call.err), 1U) << call.err;
    EXPECT_EQ(call.out, outputs[call.err]) << call.err;
    EXPECT_EQ(call.code, call.err.empty() ? 0 : 2) << call.err;
    ++times[call.err];
  }
  for (const auto& [err, ignored] : outputs) {
    EXPECT_TRUE(err.empty() || times[err] > 10) << err;
  }
}

TEST(OutOfMemory, LeavesTheOldTextOrTheNewTextWithItsBackup) {
  const std::string input = "1\n\nHe 0 0 1\n";
  const std::string old_text = "0 1\nHe 0 0 0\n";
  const std::string new_text = "0 1\nHe       0.000000      0.000000      1.000000\n";
  const TemporaryFolder folder;
  const std::string path = folder.write("a.qin", old_text);
  const std::vector<std::string> arguments = {"set", "-q", "-i", "--backup", path, "--atoms", "-"};
  const MeteredCall undisturbed = run_failing(arguments, input, 0);
  int failures = 0;
  for (std::uint64_t i = undisturbed.allocations_before + 1; i <= undisturbed.allocations; ++i) {
    folder.write("a.qin", old_text);
    std::filesystem::remove(path + ".bak");
    const MeteredCall call = run_failing(arguments, input, i);
    const bool failed = call.code == 2;
    EXPECT_EQ(call.err, failed ? path + ": error: out of memory\n" : "") << i;
    EXPECT_EQ(content_of(path), failed ? old_text : new_text) << i;
    EXPECT_EQ(names_in(folder.path()), failed ? Names{"a.qin"} : (Names{"a.qin", "a.qin.bak"}))
        << i;
    failures += failed ? 1 : 0;
  }
  EXPECT_GT(failures, 10);
}

struct VerbRow {
  std::string_view name;
  std::vector<std::string> arguments;
  std::string input;
};

class LastingShortage : public testing::TestWithParam<VerbRow> {};

class BriefShortage : public testing::TestWithParam<VerbRow> {};

/// Every kind of line, and one that is dropped.
const std::string every_line =
    "#opt(maxiter=50, tight)\n#model=m1\n\n0 1\nO 0 0 0.117\nH 0 0.757 -0.469\nQ 0 0 0\n"
    "B 1 2\nS 1 2 1.5 10\nPOST charges.txt\nB 1 x\nPRINT\xFF\n";

const std::string every_member =
    R"({"commands": [{"name": "opt", "kind": "parameter_list",
        "parameters": [{"name": "maxiter", "value": "50"}, {"name": {"bytes": "ff"}}]}],
        "geometry": {"kind": "atoms", "charge": 0, "atoms": [
        {"symbol": "a symbol of some length", "x": 0, "y": 1.5, "z": "inf"}]},
        "post_commands": [{"kind": "scan", "atom_indices": [1, 2], "scan_value": 1,
        "scan_steps": 2}, {"kind": "raw", "raw_text": "a text that is not quite short"}]})";

const VerbRow verb_rows[] = {
    {"Show", {"show", "-"}, every_line},
    {"ShowInColour", {"show", "--color=always", "-"}, every_line},
    {"ShowAsJson", {"show", "--json", "-"}, every_line},
    {"ShowLines", {"show", "--lines", "-"}, every_line},
    {"Fmt", {"fmt", "--allow-loss", "-"}, every_line},
    {"FmtWithADiff", {"fmt", "--allow-loss", "--diff", "-"}, every_line},
    {"FmtThatIsRefused", {"fmt", "-"}, every_line},
    {"Get", {"get", "-", "opt", "@atoms", "@charge"}, every_line},
    {"GetOfNothing", {"get", "-", "opt.maxitr"}, every_line},
    {"GetAsJson",
     {"get", "--json", "-", "opt", "@atoms", "@scans", "@formula", "@keys"},
     every_line},
    {"GetOfEveryKey", {"get", "-", "@keys", "@bonds", "@post_files"}, every_line},
    {"Set", {"set", "-", "opt.maxiter=100", "freq=a b", "@charge=1"}, every_line},
    {"SetOfAtoms", {"set", "--atoms", "-", "a.qin"}, "1\n\nHe 0 0 1\n"},
    {"Unset", {"unset", "-", "opt.tight", "model"}, every_line},
    {"UnsetOfLines", {"unset", "-", "@scans", "@bond[0]", "@commands[1]"}, every_line},
    {"SetOfATaskName", {"set", "--existing", "-", "--replace-task", "opt=freq"}, every_line},
    {"SetOfOneOfSeveralStructures",
     {"set", "--atoms", "-", "--frame", "-1", "a.qin"},
     "1\n\nHe 0 0 1\n1\n\nHe 0 0 2\n"},
    {"Add", {"add", "-", "--bond", "1,2", "--raw", "a text that is not quite short"}, every_line},
    {"New", {"new", "--task", "opt", "--atoms", "-"}, "1\n\nHe 0 0 1\n"},
    {"Diff", {"diff", "-", "a.qin"}, "#opt(maxiter=60, a)\n#b\n1 2\nO 0 0 0\nB 1 3\n"},
    {"DiffAsJson", {"diff", "--json", "-", "a.qin"}, "#opt(maxiter=60, a)\n#b\n1 2\nO 0 0 0\n"},
    {"Json", {"json", "-"}, every_line},
    {"Hash", {"hash", "--allow-loss", "-"}, every_line},
    {"Lint", {"lint", "-"}, every_line},
    {"LintAsJson", {"lint", "--format=json", "-"}, every_line},
    {"LintAsGithub", {"lint", "--format=github", "-"}, every_line},
    {"LintAsSarif", {"lint", "--format=sarif", "-"}, every_line},
    {"LintWithStatistics", {"lint", "--statistics", "-"}, every_line},
    {"LintThatShowsMends", {"lint", "--fix", "--diff", "-"}, every_line},
    {"FromJson", {"from-json", "--allow-loss", "-"}, every_member},
};

bool is_begin_of(const std::string& begin, const std::string& whole) {
  return whole.compare(0, begin.size(), begin) == 0;
}

/// Lets memory end at one allocation after another, from number `first` on, and expects that the
/// program either does all that it does otherwise or says that memory ran out.
void expect_end_with_message(const VerbRow& row, bool from_the_start) {
  const MeteredCall undisturbed = run_failing(row.arguments, row.input, 0);
  const std::uint64_t first = from_the_start ? 0 : undisturbed.allocations_before;
  int failures = 0;
  for (std::uint64_t i = first + 1; i <= undisturbed.allocations; ++i) {
    const MeteredCall call = run_failing(row.arguments, row.input, i, Shortage::Lasting);
    // The buffer of a stable sort may be missing, and the last sort may be the last to ask for
    // memory.
    if (call.code == undisturbed.code && call.err == undisturbed.err) {
      ASSERT_EQ(call.out, undisturbed.out) << i;
      continue;
    }
    ++failures;
    ASSERT_EQ(call.code, 2) << i;
    ASSERT_TRUE(is_begin_of(call.out, undisturbed.out)) << i << '\n' << call.out;
    const std::string message = "quill-inp: error: out of memory\n";
    ASSERT_GE(call.err.size(), message.size()) << i << '\n' << call.err;
    const std::size_t told = call.err.size() - message.size();
    ASSERT_EQ(call.err.substr(told), message) << i;
    ASSERT_TRUE(is_begin_of(call.err.substr(0, told), undisturbed.err)) << i << '\n' << call.err;
  }
  EXPECT_GT(failures, 10);
}

/// Returns the row for a folder, to which the file that it names is written.
VerbRow in_folder(const TemporaryFolder& folder, VerbRow row) {
  for (std::string& argument : row.arguments) {
    if (argument == "a.qin") argument = folder.write("a.qin", every_line);
  }
  return row;
}

TEST_P(LastingShortage, EndsTheProgramWithItsMessage) {
  const TemporaryFolder folder;
  expect_end_with_message(in_folder(folder, GetParam()), false);
}

TEST_P(BriefShortage, IsToldOrChangesNothing) {
  const TemporaryFolder folder;
  const VerbRow row = in_folder(folder, GetParam());
  const MeteredCall undisturbed = run_failing(row.arguments, row.input, 0);
  int failures = 0;
  for (std::uint64_t i = undisturbed.allocations_before + 1; i <= undisturbed.allocations; ++i) {
    const MeteredCall call = run_failing(row.arguments, row.input, i);
    if (call.err.find(" out of memory\n") != std::string::npos) {
      ASSERT_EQ(call.code, 2) << i;
      ++failures;
      continue;
    }
    ASSERT_EQ(call.code, undisturbed.code) << i << '\n' << call.err;
    ASSERT_EQ(call.out, undisturbed.out) << i;
    ASSERT_EQ(call.err, undisturbed.err) << i;
  }
  EXPECT_GT(failures, 10);
}

INSTANTIATE_TEST_SUITE_P(Of, BriefShortage, testing::ValuesIn(verb_rows),
                         [](const auto& row) { return std::string(row.param.name); });

INSTANTIATE_TEST_SUITE_P(Of, LastingShortage, testing::ValuesIn(verb_rows),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(LastingShortage, FromTheStartEndsTheProgramWithItsMessage) {
  expect_end_with_message({"", {"json", "-"}, "0 1\n"}, true);
}

TEST(LastingShortage, OfHelpEndsTheProgramWithItsMessage) {
  expect_end_with_message({"", {"help", "set"}, ""}, true);
}

TEST(LastingShortage, LeavesNoFileExceptTheOldOne) {
  const std::string old_text = "0 1\nHe 0 0 0\n";
  const std::string input = "1\n\nHe 0 0 1\n";
  const TemporaryFolder folder;
  const std::string path = folder.write("a.qin", old_text);
  const std::vector<std::string> arguments = {"set", "-q", "-i", "--backup", path, "--atoms", "-"};
  const MeteredCall undisturbed = run_failing(arguments, input, 0);
  for (std::uint64_t i = undisturbed.allocations_before + 1; i <= undisturbed.allocations; ++i) {
    folder.write("a.qin", old_text);
    std::filesystem::remove(path + ".bak");
    const MeteredCall call = run_failing(arguments, input, i, Shortage::Lasting);
    EXPECT_EQ(call.code, 2) << i;
    EXPECT_EQ(call.err, "quill-inp: error: out of memory\n") << i;
    EXPECT_EQ(content_of(path), old_text) << i;
    EXPECT_EQ(names_in(folder.path()), Names{"a.qin"}) << i;
  }
}

}  // namespace
}  // namespace kelp::input::quill::tool
