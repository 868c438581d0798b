// Other programs that work on the same file during a write in place.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <cstddef>
#include <optional>
#include <ostream>
#include <string>
#include <tuple>
#include <vector>

#include "tools/quill-inp/support/faulty_write.hpp"
#include "tools/quill-inp/support/files.hpp"
#include "tools/quill-inp/support/program.hpp"

namespace kelp::input::quill::tool {
namespace {

const bool is_in_memory = use_memory_for_temporary_files();

/// The number of the call that examines the name of the file when the file was read.
std::size_t after_reading(const std::vector<std::string>& calls) {
  const auto locked = std::find(calls.begin(), calls.end(), "fstatat");
  return static_cast<std::size_t>(std::find(locked + 1, calls.end(), "fstatat") - calls.begin()) +
         1;
}

/// One row of a table: what another program does to the file, and what is there afterwards.
struct MeanwhileRow {
  std::string name;
  std::string command;
  std::optional<std::string> content = std::nullopt;  // none: there is no such file
  mode_t kind = S_IFREG;
  std::vector<std::string> others = {};
};

void PrintTo(const MeanwhileRow& row, std::ostream* stream) { *stream << row.name; }

class ChangeMeanwhile : public testing::TestWithParam<std::tuple<MeanwhileRow, bool>> {};

TEST_P(ChangeMeanwhile, IsNotOverwritten) {
  const auto& [row, keeps_backup] = GetParam();
  const std::vector<std::string> calls = calls_of_a_write(keeps_backup);
  // When the file was read, while the new text is on its way, and at the last look.
  const std::size_t moments[] = {after_reading(calls), position(calls, "fsync") + 1,
                                 last_call(calls, "fstatat")};
  for (const std::size_t moment : moments) {
    const std::string& name = calls[moment - 1];
    FaultyWrite write(keeps_backup);
    const struct timespec long_ago[2] = {{1, 0}, {1, 0}};
    ASSERT_EQ(utimensat(AT_FDCWD, write.path().c_str(), long_ago, 0), 0);
    EXPECT_EQ(write.run_with_fault(moment, "run " + row.command),
              ended(2, "",
                    "a.qin: error: was changed by somebody else after it was read; nothing was "
                    "written\n"))
        << name;
    EXPECT_EQ(write.others(), row.others) << name;
    if (row.kind != 0) {
      EXPECT_EQ(write.state().st_mode & S_IFMT, row.kind) << name;
    }
    if (row.content) {
      EXPECT_EQ(write.content(), *row.content) << name;
    }
  }
}

std::string rewritten_water() {
  std::string text = water;
  return text.replace(1, 3, "OPT");
}

INSTANTIATE_TEST_SUITE_P(
    Table, ChangeMeanwhile,
    testing::Combine(
        testing::Values(
            MeanwhileRow{"Changed", "echo other > a.qin", "other\n"},
            MeanwhileRow{"AppendedTo", "echo other >> a.qin", water + std::string("other\n")},
            MeanwhileRow{"Rewritten", "printf '#OPT' 1<> a.qin", rewritten_water()},
            // The clock of the file system may be coarse.
            MeanwhileRow{"RewrittenWithTheOldTime",
                         "sleep 0.02; printf '#OPT' 1<> a.qin; touch -d @1 a.qin",
                         rewritten_water()},
            MeanwhileRow{"Touched", "touch a.qin", water},
            MeanwhileRow{"Replaced", "echo other > b; mv b a.qin", "other\n"},
            MeanwhileRow{"ReplacedByItsCopy", "cp -p a.qin b; mv b a.qin", water},
            MeanwhileRow{"Removed", "rm a.qin", std::nullopt, 0},
            MeanwhileRow{"MadeALink", "mv a.qin b; ln -s b a.qin", water, S_IFLNK, {"b"}},
            MeanwhileRow{"MadeADanglingLink", "ln -sf none a.qin", std::nullopt, S_IFLNK},
            MeanwhileRow{"MadeAPipe", "rm a.qin; mkfifo a.qin", std::nullopt, S_IFIFO},
            MeanwhileRow{"MadeAFolder", "rm a.qin; mkdir a.qin", std::nullopt, S_IFDIR}),
        testing::Bool()),
    [](const auto& row) {
      return std::get<MeanwhileRow>(row.param).name + words_for(std::get<bool>(row.param));
    });

TEST(ChangeWhileReading, IsNoticed) {
  const std::vector<std::string> calls = calls_of_a_write();
  FaultyWrite write;
  // The file is examined when it was read, right before its name is examined again.
  EXPECT_EQ(write.run_with_fault(after_reading(calls) - 1, "run echo other >> a.qin"),
            ended(2, "", "a.qin: error: changed while it was read\n"));
  EXPECT_EQ(write.content(), water + std::string("other\n"));
}

}  // namespace
}  // namespace kelp::input::quill::tool
