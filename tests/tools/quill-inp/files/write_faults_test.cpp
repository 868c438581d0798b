// Every system call of a write in place, failed and interrupted in turn, and other programs that
// work on the same file meanwhile.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/xattr.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <map>
#include <optional>
#include <ostream>
#include <sstream>
#include <string>
#include <tuple>
#include <vector>

#include "support/temporary_folder.hpp"
#include "tools/quill-inp/support/files.hpp"
#include "tools/quill-inp/support/program.hpp"

namespace kelp::input::quill::tool {
namespace {

constexpr unsigned mode = 0640;
constexpr const char* backup_name = "a.qin.bak";

const bool is_in_memory = use_memory_for_temporary_files();

/// A file in a folder of its own, and a program that is told to change it.
class FaultyWrite {
 public:
  explicit FaultyWrite(bool keeps_backup = false) : keeps_backup_(keeps_backup) {
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
  void write_other(const std::string& name) const { folder_.write(name, "#other"); }

  Outcome run() const { return run_program(request_); }

  Outcome run_with_fault(std::size_t call, const std::string& fault) {
    request_.environment["QUILL_INP_FAULT_AT"] = std::to_string(call);
    request_.environment["QUILL_INP_FAULT"] = fault;
    return run();
  }

  /// The same call once more, without a fault.
  Outcome run_undisturbed() {
    request_.environment.erase("LD_PRELOAD");
    return run();
  }

  /// The calls that the write makes when all goes well.
  std::vector<std::string> list_calls(const Outcome& expected = ended(0, "", "")) {
    return list("QUILL_INP_CALL_LOG", expected);
  }

  /// The calls that have flags, with these.
  std::vector<std::string> list_flags() { return list("QUILL_INP_FLAG_LOG", ended(0, "", "")); }

  /// The names in the folder, without that of the file.
  std::vector<std::string> others() const {
    std::vector<std::string> names = names_in(folder_.path());
    names.erase(std::remove(names.begin(), names.end(), "a.qin"), names.end());
    return names;
  }

  /// The expected names after a call that could clean up: a backup beside the new text, if it was
  /// asked for, and nothing beside the old text.
  std::vector<std::string> others_wanted() const {
    if (!keeps_backup_ || content() == water) return {};
    return {backup_name};
  }

  std::string backup() const { return content_of(folder_.path(backup_name)); }
  std::string path() const { return path_; }

  /// Whether no file in the folder gives anybody more rights than the target does.
  bool nothing_is_wider() const {
    for (const std::string& name : names_in(folder_.path())) {
      if ((mode_of(folder_.path(name)) & ~mode) != 0) return false;
    }
    return true;
  }

 private:
  /// The lines that a run leaves in the file that an environment variable names.
  std::vector<std::string> list(const std::string& variable, const Outcome& expected) {
    const TemporaryFolder logs;
    const std::string log = logs.write("log", "");
    request_.environment[variable] = log;
    EXPECT_EQ(run(), expected);
    std::istringstream lines(content_of(log));
    std::vector<std::string> all;
    for (std::string line; std::getline(lines, line);) all.push_back(line);
    return all;
  }

  bool keeps_backup_;
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
    // It does not matter how often a file is read or examined.
    const bool counts =
        call != "read" && call != "fstat" && call.find("xattr") == std::string::npos;
    if (counts) steps.push_back(call);
  }
  const std::vector<std::string> expected = {
      "openat",                // the folder
      "openat",                // the file in it
      "flock",                 // no other run changes it
      "fstatat",               // is it still the file of that name
      "fstatat",               // and after it was read, still the same
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
      if (name == backup_name) {
        EXPECT_EQ(write.backup(), water);
      }
    }
  }
}

const char* words_for(bool keeps_backup) { return keeps_backup ? "WithBackup" : "WithoutBackup"; }

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

/// The number of the last call of this name.
std::size_t last_call(const std::vector<std::string>& calls, const std::string& name) {
  return static_cast<std::size_t>(calls.rend() - std::find(calls.rbegin(), calls.rend(), name));
}

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

/// The number of the call that examines the name of the file when the file was read.
std::size_t after_reading(const std::vector<std::string>& calls) {
  const auto locked = std::find(calls.begin(), calls.end(), "fstatat");
  return static_cast<std::size_t>(std::find(locked + 1, calls.end(), "fstatat") - calls.begin()) +
         1;
}

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

TEST(ChangeWhileReading, IsNoticed) {
  const std::vector<std::string> calls = calls_of_a_write();
  FaultyWrite write;
  // The file is examined when it was read, right before its name is examined again.
  EXPECT_EQ(write.run_with_fault(after_reading(calls) - 1, "run echo other >> a.qin"),
            ended(2, "", "a.qin: error: changed while it was read\n"));
  EXPECT_EQ(write.content(), water + std::string("other\n"));
}

TEST(Write, OpensNoFileThatItDoesNotMean) {
  const std::vector<std::string> expected = {
      "openat DIRECTORY CLOEXEC NOCTTY",            // the folder
      "openat NOFOLLOW NONBLOCK CLOEXEC NOCTTY",    // the file in it
      "faccessat EACCESS",                          // may it be written by who runs the program
      "openat CREAT EXCL NOFOLLOW CLOEXEC NOCTTY",  // the temporary file
      "openat NOFOLLOW CLOEXEC NOCTTY",             // reading it back
  };
  EXPECT_EQ(FaultyWrite().list_flags(), expected);
}

/// The number of the call that creates the temporary file.
std::size_t creation(const std::vector<std::string>& calls) {
  const std::vector<std::string> until_it_exists(calls.begin(),
                                                 std::find(calls.begin(), calls.end(), "fchmod"));
  return last_call(until_it_exists, "openat");
}

TEST(TemporaryName, ThatSomebodyElseTookIsLeftForAnother) {
  FaultyWrite write;
  EXPECT_EQ(write.run_with_fault(creation(calls_of_a_write()), "plant"), ended(0, "", ""));
  EXPECT_EQ(write.content(), changed_water());
  const std::vector<std::string> others = write.others();
  ASSERT_EQ(others.size(), 1U);
  EXPECT_EQ(content_of(write.request().folder + "/" + others.front()), "planted");
}

TEST(TemporaryName, ThatBecameALinkIsNotFollowed) {
  const std::vector<std::string> calls = calls_of_a_write();
  FaultyWrite write;
  EXPECT_EQ(
      write.run_with_fault(last_call(calls, "openat"),
                           "run name=$(echo .quill-inp.*); mv $name moved; ln -s moved $name"),
      ended(2, "",
            "a.qin: error: the temporary file cannot be read back: Too many levels of "
            "symbolic links\n"));
  EXPECT_EQ(write.content(), water);
  EXPECT_EQ(write.others(), std::vector<std::string>{"moved"});
}

/// The number of the call that opens the file, in its folder.
std::size_t opening(const std::vector<std::string>& calls) {
  return position(calls, "flock");  // it comes right after
}

TEST(FileThatBecameALink, IsNotFollowedWhereItIsRead) {
  FaultyWrite write;
  EXPECT_EQ(write.run_with_fault(opening(calls_of_a_write()), "run mv a.qin b; ln -s b a.qin").code,
            2);
  EXPECT_EQ(content_of(write.request().folder + "/b"), water);
}

TEST(FileThatBecameAPipe, IsRefusedAtOnceWhereItIsRead) {
  FaultyWrite write;
  EXPECT_EQ(write.run_with_fault(opening(calls_of_a_write()), "run rm a.qin; mkfifo a.qin"),
            ended(2, "",
                  "a.qin: error: is a pipe, not a regular file; use '-' to read standard input\n"));
}

class FolderThatCannotBeFlushed : public testing::TestWithParam<int> {};

TEST_P(FolderThatCannotBeFlushed, IsNotAnErrorWhereTheFileSystemCannotDoThat) {
  const std::vector<std::string> calls = calls_of_a_write();
  FaultyWrite write;
  EXPECT_EQ(write.run_with_fault(last_call(calls, "fsync"), "errno " + std::to_string(GetParam())),
            ended(0, "", ""));
  EXPECT_EQ(write.content(), changed_water());
}

TEST(FileSystemWithoutLocks, IsWrittenToAsBefore) {
  const std::size_t lock = position(calls_of_a_write(), "flock") + 1;
  for (const int error : {ENOLCK, ENOTSUP, EBADF, EINVAL, ENOSYS}) {
    FaultyWrite write;
    EXPECT_EQ(write.run_with_fault(lock, "errno " + std::to_string(error)), ended(0, "", ""))
        << error;
    EXPECT_EQ(write.content(), changed_water());
  }
}

TEST(ExtendedAttribute, ThatCannotBeKeptIsNamed) {
  const std::string value = "by hand";
  FaultyWrite write;
  write.request().arguments = {"set", "-i", "a.qin", "model=m2"};
  const std::string note = "a.qin:2: note: changed: #model = m2\n";
  const auto attach = [&](const FaultyWrite& target) {
    ASSERT_EQ(setxattr(target.path().c_str(), "user.a", value.data(), value.size(), 0), 0)
        << "let TMPDIR name a folder that can hold extended attributes";
  };
  FaultyWrite undisturbed;
  attach(undisturbed);
  const std::size_t call = position(undisturbed.list_calls(), "fsetxattr") + 1;
  attach(write);
  EXPECT_EQ(
      write.run_with_fault(call, "errno " + std::to_string(ENOSPC)),
      ended(0, "", "a.qin: note: the extended attribute 'user.a' could not be kept\n" + note));
  EXPECT_EQ(write.content(), changed_water());
}

TEST_P(FolderThatCannotBeFlushed, IsOfNoHelpToAFileThatCannotBe) {
  const std::vector<std::string> calls = calls_of_a_write();
  FaultyWrite write;
  EXPECT_EQ(
      write.run_with_fault(position(calls, "fsync") + 1, "errno " + std::to_string(GetParam()))
          .code,
      2);
  EXPECT_EQ(write.content(), water);
}

INSTANTIATE_TEST_SUITE_P(Table, FolderThatCannotBeFlushed, testing::Values(EINVAL, ENOTSUP),
                         [](const auto& row) { return std::string(strerrorname_np(row.param)); });

class FileSystemWithoutLinks : public testing::TestWithParam<int> {
 protected:
  static Outcome run(FaultyWrite& write) {
    const std::vector<std::string> calls = calls_of_a_write(true);
    const std::size_t link = position(calls, "linkat") + 1;
    EXPECT_LE(link, calls.size());
    return write.run_with_fault(link, "errno " + std::to_string(GetParam()));
  }
};

TEST_P(FileSystemWithoutLinks, StillGetsABackup) {
  FaultyWrite write(true);
  EXPECT_EQ(run(write), ended(0, "", ""));
  EXPECT_EQ(write.others(), std::vector<std::string>{backup_name});
}

TEST_P(FileSystemWithoutLinks, KeepsWhatHasTheNameOfTheBackup) {
  FaultyWrite write(true);
  write.write_other(backup_name);
  EXPECT_EQ(run(write).code, 2);
  EXPECT_EQ(write.backup(), "#other");
}

TEST_P(FileSystemWithoutLinks, KeepsALinkToNowhereThatHasTheNameOfTheBackup) {
  FaultyWrite write(true);
  const std::string link = write.request().folder + "/" + backup_name;
  ASSERT_EQ(symlink("none", link.c_str()), 0);
  EXPECT_EQ(run(write).code, 2);
  struct stat state {};
  ASSERT_EQ(lstat(link.c_str(), &state), 0);
  EXPECT_TRUE(S_ISLNK(state.st_mode));
  EXPECT_EQ(write.content(), water);
}

INSTANTIATE_TEST_SUITE_P(Table, FileSystemWithoutLinks, testing::Values(EPERM, ENOTSUP),
                         [](const auto& row) { return std::string(strerrorname_np(row.param)); });

/// The number of the call that asks for the access control list.
std::size_t first_list(const std::vector<std::string>& calls) {
  return position(calls, "fgetxattr") + 1;
}

TEST(AccessList, ThatCannotBeReadCostsTheRightsOfTheGroup) {
  FaultyWrite write;
  write.request().arguments = {"set", "-i", "a.qin", "model=m2"};
  EXPECT_EQ(write.run_with_fault(first_list(calls_of_a_write()), "errno " + std::to_string(EIO)),
            ended(0, "",
                  "a.qin: note: the access control list could not be kept\n"
                  "a.qin:2: note: changed: #model = m2\n"));
  EXPECT_EQ(write.content(), changed_water());
  // The bits of the group may have been those of a list, and would let the group in without it.
  EXPECT_EQ(write.mode_of_file(), 0600U);
}

TEST(AccessList, ThatTheFileSystemDoesNotHaveIsNotMissed) {
  FaultyWrite write;
  EXPECT_EQ(
      write.run_with_fault(first_list(calls_of_a_write()), "errno " + std::to_string(ENOTSUP)),
      ended(0, "", ""));
  EXPECT_EQ(write.mode_of_file(), mode);
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
