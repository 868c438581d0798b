// Every system call of a write in place, failed and interrupted in turn.

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <map>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "files.hpp"
#include "program.hpp"
#include "support/temporary_folder.hpp"

namespace kelp::input::quill::tool {
namespace {

constexpr unsigned mode = 0640;

const bool is_in_memory = use_memory_for_temporary_files();

/// A file in a folder of its own, and a program that is told to change it.
class FaultyWrite {
 public:
  explicit FaultyWrite(bool keeps_backup = false) {
    path_ = folder_.write("a.qin", water);
    chmod(path_.c_str(), mode);
    request_.arguments = {"set", "-q", "-i", "a.qin", "model=m2"};
    if (keeps_backup) request_.arguments.emplace_back("--backup");
    request_.folder = folder_.path();
    request_.umask = 0;
    request_.environment = {{"LD_PRELOAD", QUILL_INP_FAILING_CALLS},
                            {"ASAN_OPTIONS", "verify_asan_link_order=0"}};
  }

  Request& request() { return request_; }
  std::string content() const { return content_of(path_); }
  unsigned mode_of_file() const { return mode_of(path_); }
  struct stat state() const {
    return state_of(path_);
  }
  void write_other(const std::string& name) const { folder_.write(name, "other"); }

  Outcome run() const { return run_program(request_); }

  Outcome run_with_fault(std::size_t call, const std::string& fault) {
    request_.environment["QUILL_INP_FAULT_AT"] = std::to_string(call);
    request_.environment["QUILL_INP_FAULT"] = fault;
    return run();
  }

  /// The calls that the write makes when all goes well.
  std::vector<std::string> list_calls() {
    const TemporaryFolder logs;
    const std::string log = logs.write("calls", "");
    request_.environment["QUILL_INP_CALL_LOG"] = log;
    EXPECT_EQ(run(), ended(0, "", ""));
    std::istringstream lines(content_of(log));
    std::vector<std::string> calls;
    for (std::string line; std::getline(lines, line);) calls.push_back(line);
    return calls;
  }

  /// Names in the folder but for that of the file.
  std::vector<std::string> others() const {
    std::vector<std::string> names = names_in(folder_.path());
    names.erase(std::remove(names.begin(), names.end(), "a.qin"), names.end());
    return names;
  }

  /// Whether nobody may do with any file of the folder what he may not do with the target.
  bool nothing_is_wider() const {
    for (const std::string& name : names_in(folder_.path())) {
      if ((mode_of(folder_.path(name)) & ~mode) != 0) return false;
    }
    return true;
  }

 private:
  TemporaryFolder folder_;
  std::string path_;
  Request request_;
};

std::vector<std::string> calls_of_a_write(bool keeps_backup = false) {
  return FaultyWrite(keeps_backup).list_calls();
}

bool is_old_or_new(const std::string& content) {
  return content == water || content == changed_water();
}

std::size_t position(const std::vector<std::string>& calls, const std::string& name) {
  return static_cast<std::size_t>(std::find(calls.begin(), calls.end(), name) - calls.begin());
}

TEST(Write, TakesItsStepsInOrder) {
  std::vector<std::string> steps;
  for (const std::string& call : calls_of_a_write()) {
    // How often a file is read or looked at is of no concern.
    const bool counts =
        call != "read" && call != "fstat" && call.find("xattr") == std::string::npos;
    if (counts) steps.push_back(call);
  }
  const std::vector<std::string> expected = {
      "openat",                // the file
      "close",                 //
      "openat",                // its folder
      "openat",                // the file in the folder
      "faccessat",             // may it be written
      "openat",                // the temporary file
      "fchmod",                // the mode
      "write",     "fsync",    // the text
      "close",     "openat",   // reading it back
      "close",     "fstatat",  // is the file still the one that was read
      "renameat",  "fsync"     // the new name
  };
  ASSERT_GE(steps.size(), expected.size());
  EXPECT_TRUE(std::equal(expected.begin(), expected.end(), steps.begin()))
      << testing::PrintToString(steps);
}

TEST(Write, KilledAtAnyCallLeavesTheOldOrTheNewText) {
  const std::vector<std::string> calls = calls_of_a_write();
  const std::size_t rename = position(calls, "renameat") + 1;
  ASSERT_LT(rename, calls.size());
  for (std::size_t call = 1; call <= calls.size(); ++call) {
    FaultyWrite write;
    const Outcome outcome = write.run_with_fault(call, "signal " + std::to_string(SIGKILL));
    EXPECT_EQ(outcome.signal, SIGKILL) << calls[call - 1];
    EXPECT_EQ(write.content(), call <= rename ? water : changed_water()) << calls[call - 1];
    EXPECT_EQ(write.mode_of_file(), mode);
    EXPECT_TRUE(write.nothing_is_wider()) << calls[call - 1];
  }
}

TEST(Write, KilledAtAnyCallLeavesTheOldOrTheNewTextBesideABackup) {
  const std::vector<std::string> calls = calls_of_a_write(true);
  for (std::size_t call = 1; call <= calls.size(); ++call) {
    FaultyWrite write(true);
    write.run_with_fault(call, "signal " + std::to_string(SIGKILL));
    EXPECT_TRUE(is_old_or_new(write.content())) << calls[call - 1];
    EXPECT_TRUE(write.nothing_is_wider()) << calls[call - 1];
    for (const std::string& name : write.others()) {
      if (name == "a.qin.bak") {
        EXPECT_EQ(content_of(write.request().folder + "/" + name), water);
      }
    }
  }
}

class Signal : public testing::TestWithParam<int> {};

TEST_P(Signal, AtAnyCallRemovesTheTemporaryFile) {
  const std::vector<std::string> calls = calls_of_a_write();
  for (std::size_t call = 1; call <= calls.size(); ++call) {
    FaultyWrite write;
    const Outcome outcome = write.run_with_fault(call, "signal " + std::to_string(GetParam()));
    EXPECT_EQ(outcome.signal, GetParam()) << calls[call - 1];
    EXPECT_TRUE(is_old_or_new(write.content())) << calls[call - 1];
    EXPECT_EQ(write.others(), std::vector<std::string>()) << calls[call - 1];
  }
}

TEST_P(Signal, ThatIsIgnoredStaysIgnored) {
  const std::vector<std::string> calls = calls_of_a_write();
  for (std::size_t call = 1; call <= calls.size(); ++call) {
    FaultyWrite write;
    write.request().ignored_signals = {GetParam()};
    EXPECT_EQ(write.run_with_fault(call, "signal " + std::to_string(GetParam())), ended(0, "", ""))
        << calls[call - 1];
    EXPECT_EQ(write.content(), changed_water());
    EXPECT_EQ(write.others(), std::vector<std::string>());
  }
}

INSTANTIATE_TEST_SUITE_P(Signals, Signal, testing::Values(SIGINT, SIGTERM, SIGHUP),
                         [](const auto& row) { return sigabbrev_np(row.param); });

class Failure : public testing::TestWithParam<bool> {};

/// Calls whose failure changes nothing: closing what was only read.
bool may_fail(const std::vector<std::string>& calls, std::size_t call) {
  const std::size_t write = position(calls, "write");
  return calls[call - 1] == "close" && (call < write || call > position(calls, "fsync") + 2);
}

TEST_P(Failure, OfAnyCallLeavesTheOldOrTheNewTextAndNothingElse) {
  const std::vector<std::string> calls = calls_of_a_write(GetParam());
  std::map<std::string, int> failures;
  for (std::size_t call = 1; call <= calls.size(); ++call) {
    const std::string& name = calls[call - 1];
    FaultyWrite write(GetParam());
    const Outcome outcome = write.run_with_fault(call, "errno " + std::to_string(EIO));
    ASSERT_TRUE(outcome.code) << name;
    EXPECT_TRUE(*outcome.code == 0 || *outcome.code == 2) << name;
    EXPECT_TRUE(is_old_or_new(write.content())) << name;
    EXPECT_TRUE(write.nothing_is_wider()) << name;
    if (*outcome.code == 0) {
      EXPECT_EQ(write.content(), changed_water()) << name;
    } else {
      EXPECT_EQ(outcome.err.rfind("a.qin: error: ", 0), 0U) << outcome.err;
      EXPECT_EQ(write.content() == changed_water(),
                outcome.err.find("holds the new text") != std::string::npos)
          << outcome.err;
      ++failures[name];
    }
    // Where the removal itself fails, the name stays.
    std::vector<std::string> others = write.others();
    others.erase(std::remove(others.begin(), others.end(), "a.qin.bak"), others.end());
    EXPECT_EQ(others.size(), name == "unlinkat" ? 1U : 0U) << name;
  }
  for (const char* name : {"openat", "read", "write", "fsync", "close", "fchmod", "renameat"})
    EXPECT_GE(failures[name], 1) << name;
}

INSTANTIATE_TEST_SUITE_P(Backup, Failure, testing::Bool(),
                         [](const auto& row) { return row.param ? "Kept" : "NotKept"; });

TEST(Failure, OfWhatMakesTheWriteSafeIsNeverPassedOver) {
  const std::vector<std::string> calls = calls_of_a_write();
  for (std::size_t call = 1; call <= calls.size(); ++call) {
    const std::string& name = calls[call - 1];
    if (may_fail(calls, call) || name.find("xattr") != std::string::npos) continue;
    FaultyWrite write;
    EXPECT_EQ(write.run_with_fault(call, "errno " + std::to_string(EIO)).code, 2)
        << name << " number " << call;
  }
}

TEST(Interruption, OfAnyCallThatMayBeTriedAgainChangesNothing) {
  const std::vector<std::string> calls = calls_of_a_write();
  for (std::size_t call = 1; call <= calls.size(); ++call) {
    const std::string& name = calls[call - 1];
    if (name != "openat" && name != "read" && name != "write" && name != "fsync" && name != "close")
      continue;
    FaultyWrite write;
    EXPECT_EQ(write.run_with_fault(call, "errno " + std::to_string(EINTR)), ended(0, "", ""))
        << name;
    EXPECT_EQ(write.content(), changed_water());
    EXPECT_EQ(write.others(), std::vector<std::string>());
  }
}

TEST(ShortWrites, AreContinued) {
  FaultyWrite write;
  write.request().environment["QUILL_INP_SHORT"] = "1";
  EXPECT_EQ(write.run(), ended(0, "", ""));
  EXPECT_EQ(write.content(), changed_water());
}

TEST(FullDisk, LeavesTheOldText) {
  const std::vector<std::string> calls = calls_of_a_write();
  FaultyWrite write;
  EXPECT_EQ(write.run_with_fault(position(calls, "write") + 1, "errno " + std::to_string(ENOSPC)),
            ended(2, "", "a.qin: error: cannot be written: No space left on device\n"));
  EXPECT_EQ(write.content(), water);
  EXPECT_EQ(write.others(), std::vector<std::string>());
}

TEST(FolderThatCannotBeFlushed, IsNoErrorWhereTheFileSystemHasNoWayTo) {
  const std::vector<std::string> calls = calls_of_a_write();
  const std::size_t last =
      calls.size() -
      static_cast<std::size_t>(std::find(calls.rbegin(), calls.rend(), "fsync") - calls.rbegin());
  FaultyWrite write;
  EXPECT_EQ(write.run_with_fault(last, "errno " + std::to_string(EINVAL)), ended(0, "", ""));
  EXPECT_EQ(write.content(), changed_water());
}

TEST(FileSystemWithoutLinks, StillGetsABackup) {
  const std::vector<std::string> calls = calls_of_a_write(true);
  const std::size_t link = position(calls, "linkat") + 1;
  ASSERT_LE(link, calls.size());
  FaultyWrite write(true);
  EXPECT_EQ(write.run_with_fault(link, "errno " + std::to_string(EPERM)), ended(0, "", ""));
  EXPECT_EQ(write.others(), std::vector<std::string>{"a.qin.bak"});
  FaultyWrite second(true);
  second.write_other("a.qin.bak");
  EXPECT_EQ(second.run_with_fault(link, "errno " + std::to_string(EPERM)).code, 2);
  EXPECT_EQ(content_of(second.request().folder + "/a.qin.bak"), "other");
}

}  // namespace
}  // namespace kelp::input::quill::tool
