// System calls that fail, and signals, in the verbs that write new files or many of them.

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <map>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "support/temporary_folder.hpp"
#include "tools/quill-inp/support/files.hpp"
#include "tools/quill-inp/support/folder_texts.hpp"
#include "tools/quill-inp/support/program.hpp"

namespace kelp::input::quill::tool {
namespace {

const bool is_in_memory = use_memory_for_temporary_files();

/// Runs the program in a folder that holds `files`, with more in its environment, and changes them
/// to what is there then.
Outcome run_with(const std::vector<std::string>& arguments,
                 const std::map<std::string, std::string>& environment, FolderTexts& files) {
  const TemporaryFolder folder;
  for (const auto& [name, text] : files) folder.write(name, text);
  Request request;
  request.arguments = arguments;
  request.folder = folder.path();
  request.environment = environment;
  request.environment.insert(
      {{"LD_PRELOAD", QUILL_INP_FAILING_CALLS}, {"ASAN_OPTIONS", "verify_asan_link_order=0"}});
  const Outcome outcome = run_program(request);
  files = texts_in(folder.path());
  return outcome;
}

/// The same with a fault at one of the system calls.
Outcome run_with_fault(const std::vector<std::string>& arguments, std::size_t call,
                       const std::string& fault, FolderTexts& files) {
  return run_with(
      arguments, {{"QUILL_INP_FAULT_AT", std::to_string(call)}, {"QUILL_INP_FAULT", fault}}, files);
}

/// Counts the system calls of a run that nothing disturbs, and changes the files to what it makes.
std::size_t count_calls(const std::vector<std::string>& arguments, FolderTexts& files) {
  const TemporaryFolder logs;
  const std::string log = logs.write("log", "");
  EXPECT_EQ(run_with(arguments, {{"QUILL_INP_CALL_LOG", log}}, files).code, 0);
  const std::string calls = content_of(log);
  return static_cast<std::size_t>(std::count(calls.begin(), calls.end(), '\n'));
}

struct CallRow {
  std::string_view name;
  std::vector<std::string> arguments;
};

void PrintTo(const CallRow& row, std::ostream* stream) { *stream << row.name; }

class WritingCall : public testing::TestWithParam<CallRow> {
 protected:
  /// "b.qin" has a mend that is safe.
  const FolderTexts before_ = {{"a.qin", water}, {"b.qin", "\xEF\xBB\xBF#opt\n0 1\nHe 0 0 0\n"}};
};

TEST_P(WritingCall, ThatFailsLeavesEveryFileOldOrNew) {
  FolderTexts after = before_;
  const std::size_t calls = count_calls(GetParam().arguments, after);
  ASSERT_NE(after, before_);
  int failures = 0;
  for (std::size_t call = 1; call <= calls; ++call) {
    FolderTexts files = before_;
    const Outcome outcome =
        run_with_fault(GetParam().arguments, call, "errno " + std::to_string(EIO), files);
    ASSERT_TRUE(outcome.code) << call;
    expect_old_or_new(files, before_, after);
    if (*outcome.code == 0) {
      EXPECT_EQ(files, after) << call;
    } else {
      EXPECT_EQ(*outcome.code, 2) << call;
      EXPECT_NE(outcome.err.find(": Input/output error\n"), std::string::npos) << outcome.err;
      ++failures;
    }
  }
  EXPECT_GT(failures, 3);
}

TEST_P(WritingCall, ThatASignalEndsLeavesEveryFileOldOrNew) {
  FolderTexts after = before_;
  const std::size_t calls = count_calls(GetParam().arguments, after);
  for (std::size_t call = 1; call <= calls; ++call) {
    FolderTexts files = before_;
    EXPECT_EQ(run_with_fault(GetParam().arguments, call, "signal " + std::to_string(SIGTERM), files)
                  .signal,
              SIGTERM)
        << call;
    expect_old_or_new(files, before_, after);
  }
}

const CallRow calls_that_write[] = {
    {"Output", {"set", "-q", "a.qin", "model=m2", "-o", "new.qin"}},
    {"OutputThatReplaces", {"set", "-q", "a.qin", "model=m2", "-o", "b.qin", "--force"}},
    {"Sweep", {"sweep", "-q", "a.qin", "model=[m2,m3]", "-o", "{model}.qin"}},
    {"LintThatMends", {"lint", "-q", "--fix", "--fail-on=never", "b.qin"}},
};

INSTANTIATE_TEST_SUITE_P(Of, WritingCall, testing::ValuesIn(calls_that_write),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(WritingOfManyFiles, ThatASignalEndsLeavesEveryFileOldOrNew) {
  std::vector<std::string> arguments = {"set", "-q", "-i", "-j2"};
  FolderTexts before;
  for (int i = 0; i < 12; ++i) {
    const std::string name = std::to_string(i) + ".qin";
    before[name] = water;
    arguments.push_back(name);
  }
  arguments.emplace_back("model=m2");
  FolderTexts after = before;
  const std::size_t calls = count_calls(arguments, after);
  ASSERT_EQ(after["0.qin"], changed_water());
  for (std::size_t call = 1; call < calls; call += 7) {
    FolderTexts files = before;
    EXPECT_EQ(run_with_fault(arguments, call, "signal " + std::to_string(SIGINT), files).signal,
              SIGINT)
        << call;
    expect_old_or_new(files, before, after);
  }
}

}  // namespace
}  // namespace kelp::input::quill::tool
