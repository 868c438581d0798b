// Signals at every system call of a write in place.

#include <gtest/gtest.h>

#include <csignal>
#include <cstddef>
#include <string>
#include <tuple>
#include <vector>

#include "tools/quill-inp/support/faulty_write.hpp"
#include "tools/quill-inp/support/files.hpp"
#include "tools/quill-inp/support/program.hpp"

namespace kelp::input::quill::tool {
namespace {

const bool is_in_memory = use_memory_for_temporary_files();

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

TEST(Write, KilledAtAnyCallLeavesTheOldOrTheNewTextWithABackup) {
  const std::vector<std::string> calls = calls_of_a_write(true);
  for (std::size_t call = 1; call <= calls.size(); ++call) {
    FaultyWrite write(true);
    write.run_with_fault(call, "signal " + std::to_string(SIGKILL));
    EXPECT_TRUE(is_old_or_new(write.content())) << calls[call - 1];
    EXPECT_TRUE(write.nothing_is_wider()) << calls[call - 1];
    for (const std::string& name : write.others()) {
      if (name == backup_name) {
        EXPECT_EQ(write.backup(), water);
      }
    }
  }
}

class Signal : public testing::TestWithParam<std::tuple<int, bool>> {
 protected:
  static int number() { return std::get<int>(GetParam()); }
  static bool keeps_backup() { return std::get<bool>(GetParam()); }
};

TEST_P(Signal, AtAnyCallLeavesNothingInTheWayOfTheNextTry) {
  const std::vector<std::string> calls = calls_of_a_write(keeps_backup());
  for (std::size_t call = 1; call <= calls.size(); ++call) {
    FaultyWrite write(keeps_backup());
    const Outcome outcome = write.run_with_fault(call, "signal " + std::to_string(number()));
    EXPECT_EQ(outcome.signal, number()) << calls[call - 1];
    EXPECT_TRUE(is_old_or_new(write.content())) << calls[call - 1];
    EXPECT_EQ(write.others(), write.others_wanted()) << calls[call - 1];
    EXPECT_EQ(write.run_undisturbed(), ended(0, "", "")) << calls[call - 1];
    EXPECT_EQ(write.others(), write.others_wanted()) << calls[call - 1];
  }
}

TEST_P(Signal, ThatIsIgnoredStaysIgnored) {
  const std::vector<std::string> calls = calls_of_a_write(keeps_backup());
  for (std::size_t call = 1; call <= calls.size(); ++call) {
    FaultyWrite write(keeps_backup());
    write.request().ignored_signals = {number()};
    EXPECT_EQ(write.run_with_fault(call, "signal " + std::to_string(number())), ended(0, "", ""))
        << calls[call - 1];
    EXPECT_EQ(write.content(), changed_water());
    EXPECT_EQ(write.others(), write.others_wanted());
  }
}

INSTANTIATE_TEST_SUITE_P(Signals, Signal,
                         testing::Combine(testing::Values(SIGINT, SIGTERM, SIGHUP),
                                          testing::Bool()),
                         [](const auto& row) {
                           return std::string(sigabbrev_np(std::get<int>(row.param))) +
                                  words_for(std::get<bool>(row.param));
                         });

TEST(SignalAtTheSecondFile, EndsTheProgramAsAtTheFirst) {
  const auto prepare = [](FaultyWrite& write) {
    for (const char* name : {"b.qin", "c.qin"}) write.write_other(name);
    write.request().arguments = {"fmt", "-q", "-i", "b.qin", "c.qin"};
  };
  FaultyWrite undisturbed;
  prepare(undisturbed);
  const std::size_t call = last_call(undisturbed.list_calls(), "write");
  FaultyWrite write;
  prepare(write);
  EXPECT_EQ(write.run_with_fault(call, "signal " + std::to_string(SIGTERM)).signal, SIGTERM);
  EXPECT_EQ(content_of(write.request().folder + "/b.qin"), "#other\n");
  EXPECT_EQ(content_of(write.request().folder + "/c.qin"), "#other");
  EXPECT_EQ(write.others(), (std::vector<std::string>{"b.qin", "c.qin"}));
}

}  // namespace
}  // namespace kelp::input::quill::tool
