// Every system call of a write in place, failed and interrupted in turn.

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstddef>
#include <map>
#include <string>
#include <vector>

#include "tools/quill-inp/support/faulty_write.hpp"
#include "tools/quill-inp/support/files.hpp"
#include "tools/quill-inp/support/program.hpp"

namespace kelp::input::quill::tool {
namespace {

const bool is_in_memory = use_memory_for_temporary_files();

/// A write without and with --backup.
class AnyWrite : public testing::TestWithParam<bool> {};

/// Calls whose failure does not change the file: closing a file that was only read, and removing
/// the temporary name of the backup.
bool may_fail(const std::vector<std::string>& calls, std::size_t call) {
  const bool closes_what_was_written =
      call > 1 && calls[call - 2] == "fsync" && call < position(calls, "renameat");
  return calls[call - 1] == "unlinkat" || (calls[call - 1] == "close" && !closes_what_was_written);
}

TEST_P(AnyWrite, ThatFailsLeavesTheOldOrTheNewTextAndNothingElse) {
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
      // The reason is told, and nothing else is blamed.
      EXPECT_NE(outcome.err.find(": Input/output error\n"), std::string::npos) << outcome.err;
      EXPECT_EQ(write.content() == changed_water(),
                outcome.err.find("holds the new text") != std::string::npos)
          << outcome.err;
      ++failures[name];
    }
    if (name != "unlinkat") {
      EXPECT_EQ(write.others(), write.others_wanted()) << name;
    } else {
      EXPECT_EQ(write.others().size(), write.others_wanted().size() + 1) << name;
    }
  }
  for (const char* name : {"openat", "read", "write", "fsync", "close", "fchmod", "renameat"})
    EXPECT_GE(failures[name], 1) << name;
}

TEST_P(AnyWrite, PassesOverNoFailureOfWhatMakesItSafe) {
  const std::vector<std::string> calls = calls_of_a_write(GetParam());
  for (std::size_t call = 1; call <= calls.size(); ++call) {
    const std::string& name = calls[call - 1];
    if (name.find("xattr") != std::string::npos || may_fail(calls, call)) continue;
    FaultyWrite write(GetParam());
    EXPECT_EQ(write.run_with_fault(call, "errno " + std::to_string(EIO)).code, 2)
        << name << " number " << call;
  }
}

TEST_P(AnyWrite, ThatFailedCanBeTriedAgain) {
  const std::size_t count = calls_of_a_write(GetParam()).size();
  for (std::size_t call = 1; call <= count; ++call) {
    FaultyWrite write(GetParam());
    if (write.run_with_fault(call, "errno " + std::to_string(EIO)).code == 0) continue;
    EXPECT_EQ(write.run_undisturbed(), ended(0, "", "")) << call;
    EXPECT_EQ(write.content(), changed_water()) << call;
    EXPECT_EQ(write.others(), write.others_wanted()) << call;
    EXPECT_TRUE(!GetParam() || write.backup() == water) << call;
  }
}

TEST_P(AnyWrite, GoesOnAfterAnInterruption) {
  const std::vector<std::string> calls = calls_of_a_write(GetParam());
  for (std::size_t call = 1; call <= calls.size(); ++call) {
    const std::string& name = calls[call - 1];
    if (name != "openat" && name != "read" && name != "write" && name != "fsync" &&
        name != "close" && name != "flock")
      continue;
    FaultyWrite write(GetParam());
    EXPECT_EQ(write.run_with_fault(call, "errno " + std::to_string(EINTR)), ended(0, "", ""))
        << name;
    EXPECT_EQ(write.content(), changed_water());
    EXPECT_EQ(write.others(), write.others_wanted());
  }
}

TEST_P(AnyWrite, ContinuesShortWrites) {
  FaultyWrite write(GetParam());
  write.request().environment["QUILL_INP_SHORT"] = "1";
  EXPECT_EQ(write.run(), ended(0, "", ""));
  EXPECT_EQ(write.content(), changed_water());
}

TEST_P(AnyWrite, LeavesTheOldTextOnAFullDisk) {
  const std::vector<std::string> calls = calls_of_a_write(GetParam());
  for (std::size_t call = 1; call <= calls.size(); ++call) {
    if (calls[call - 1] != "write") continue;
    FaultyWrite write(GetParam());
    EXPECT_EQ(write.run_with_fault(call, "errno " + std::to_string(ENOSPC)),
              ended(2, "", "a.qin: error: cannot be written: No space left on device\n"));
    EXPECT_EQ(write.content(), water);
    EXPECT_EQ(write.others(), std::vector<std::string>());
  }
}

TEST_P(AnyWrite, ReadsBackWhatItWrote) {
  const std::vector<std::string> calls = calls_of_a_write(GetParam());
  int times = 0;
  for (std::size_t call = position(calls, "fsync"); call <= calls.size(); ++call) {
    // The first read of a file gives the text, the second one its end.
    if (calls[call - 1] != "read" || calls[call - 2] != "openat") continue;
    ++times;
    for (const char* fault : {"corrupt", "end"}) {
      FaultyWrite write(GetParam());
      const struct stat before = write.state();
      EXPECT_EQ(
          write.run_with_fault(call, fault),
          ended(2, "", "a.qin: error: the temporary file does not hold what was written to it\n"));
      EXPECT_EQ(write.content(), water);
      EXPECT_EQ(write.state().st_ino, before.st_ino);
      EXPECT_EQ(write.others(), std::vector<std::string>());
    }
  }
  EXPECT_EQ(times, GetParam() ? 2 : 1);
}

INSTANTIATE_TEST_SUITE_P(Backup, AnyWrite, testing::Bool(),
                         [](const auto& row) { return words_for(row.param); });

TEST(TooFewDescriptors, AreNotBlamedOnSomebodyElse) {
  const std::vector<std::string> calls = calls_of_a_write();
  for (std::size_t call = 0; call < calls.size(); ++call) {
    if (calls[call] != "openat") continue;
    FaultyWrite write;
    const Outcome outcome = write.run_with_fault(call + 1, "errno " + std::to_string(EMFILE));
    EXPECT_EQ(outcome.code, 2) << call;
    EXPECT_NE(outcome.err.find(": Too many open files\n"), std::string::npos) << outcome.err;
    EXPECT_EQ(write.content(), water);
    EXPECT_EQ(write.others(), std::vector<std::string>{});
  }
}

TEST(StandardOutput, ThatCannotBeClosedIsAnError) {
  FaultyWrite write;
  write.request().arguments = {"set", "a.qin", "model=m2"};
  // A copy of the descriptor is closed, after the file that was read.
  const std::size_t call = last_call(write.list_calls(ended(0, changed_water(), "")), "close");
  EXPECT_EQ(write.run_with_fault(call, "errno " + std::to_string(EIO)),
            ended(2, changed_water(),
                  "quill-inp: error: cannot write to standard output: Input/output error\n"));
  EXPECT_EQ(write.run_with_fault(call, "errno " + std::to_string(EINTR)),
            ended(0, changed_water(), ""));
}

}  // namespace
}  // namespace kelp::input::quill::tool
