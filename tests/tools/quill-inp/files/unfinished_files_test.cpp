#include "quill-inp/files/unfinished_files.hpp"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "files/file_descriptor.hpp"
#include "support/temporary_folder.hpp"
#include "tools/quill-inp/support/files.hpp"

namespace kelp::input::quill::tool {
namespace {

using Names = std::vector<std::string>;

volatile std::sig_atomic_t arrived = 0;

extern "C" void note_arrival(int signal) {
  arrived = signal;
  errno = ENOENT;
}

std::string history;  // of the two handlers below

extern "C" void raise_another(int) {
  history += "first begins, ";
  raise(SIGTERM);
  history += "first ends, ";
}

extern "C" void note_second(int) { history += "second"; }

using Handler = void (*)(int);

Handler handler_of(int signal) {
  struct sigaction action {};
  sigaction(signal, nullptr, &action);
  return action.sa_handler;
}

/// A step of this thread.
class Step {
 public:
  Step() { unfinished_files().begin_step(); }
  Step(const Step&) = delete;
  Step& operator=(const Step&) = delete;
  ~Step() { unfinished_files().end_step(); }
};

/// A file that the list has as long as the object lives, unless it is kept.
class ListedFile {
 public:
  ListedFile(int folder, std::string name) : file_{folder, std::move(name)} {
    const Step step;
    unfinished_files().add(file_);
  }
  ListedFile(const ListedFile&) = delete;
  ListedFile& operator=(const ListedFile&) = delete;
  ~ListedFile() {
    if (is_kept_) return;
    const Step step;
    unlinkat(file_.folder, file_.name.c_str(), 0);
    unfinished_files().remove(file_);
  }

  void keep() {
    const Step step;
    unfinished_files().remove(file_);
    is_kept_ = true;
  }

 private:
  lossless::UnfinishedFile file_;
  bool is_kept_ = false;
};

/// A folder with a file "a", and the handlers that a program may have.
class UnfinishedFilesOfTheProcess : public testing::TestWithParam<int> {
 protected:
  UnfinishedFilesOfTheProcess()
      : folder_number_(lossless::open_in(AT_FDCWD, folder_.path(), O_RDONLY | O_DIRECTORY)) {
    folder_.write("a", "");
    struct sigaction action {};
    action.sa_handler = note_arrival;
    sigaction(GetParam(), &action, &former_);
    arrived = 0;
  }
  ~UnfinishedFilesOfTheProcess() override { sigaction(GetParam(), &former_, nullptr); }

  int number() const { return folder_number_.number(); }
  Names names() const { return names_in(folder_.path()); }
  const TemporaryFolder& folder() const { return folder_; }

 private:
  TemporaryFolder folder_;
  lossless::FileDescriptor folder_number_;
  struct sigaction former_ = {};
};

TEST_P(UnfinishedFilesOfTheProcess, AreRemovedOnASignalThatTheProgramThenGets) {
  const ListedFile name(number(), "a");
  raise(GetParam());
  EXPECT_EQ(arrived, GetParam());
  EXPECT_EQ(names(), Names());
}

TEST_P(UnfinishedFilesOfTheProcess, AreMadeInAStepWithTheSignalsCaught) {
  const Handler before = handler_of(GetParam());
  {
    const Step step;
    EXPECT_NE(handler_of(GetParam()), before);
    { const ListedFile name(number(), "a"); }
    EXPECT_NE(handler_of(GetParam()), before) << "after a name came and went";
  }
  EXPECT_EQ(handler_of(GetParam()), before);
}

TEST_P(UnfinishedFilesOfTheProcess, LeaveTheErrorOfAnInterruptedCallAlone) {
  struct sigaction action {};
  action.sa_handler = [](int signal) { arrived = signal; };
  sigaction(GetParam(), &action, nullptr);
  const ListedFile name(number(), "b");  // there is none, so removing it fails
  errno = EAGAIN;
  raise(GetParam());
  EXPECT_EQ(errno, EAGAIN);
  EXPECT_EQ(arrived, GetParam());
}

TEST_P(UnfinishedFilesOfTheProcess, AreAllRemoved) {
  folder().write("b", "");
  folder().write("c", "");
  const ListedFile a(number(), "a");
  std::optional<ListedFile> b(std::in_place, number(), "b");
  const ListedFile c(number(), "c");
  b->keep();
  raise(GetParam());
  EXPECT_EQ(names(), Names{"b"});
}

TEST_P(UnfinishedFilesOfTheProcess, GiveTheSignalsBackWhenThereAreNoMore) {
  {
    const ListedFile a(number(), "a");
    EXPECT_NE(handler_of(GetParam()), note_arrival);
    ListedFile b(number(), "b");
    b.keep();
    EXPECT_NE(handler_of(GetParam()), note_arrival);
  }
  EXPECT_EQ(handler_of(GetParam()), note_arrival);
  EXPECT_EQ(names(), Names());
}

TEST_P(UnfinishedFilesOfTheProcess, CanBeMadeAgainInAProgramThatGoesOnAfterTheSignal) {
  {
    const ListedFile name(number(), "a");
    raise(GetParam());
  }
  arrived = 0;
  folder().write("b", "");
  const ListedFile name(number(), "b");
  raise(GetParam());
  EXPECT_EQ(arrived, GetParam());
  EXPECT_EQ(names(), Names());
}

TEST_P(UnfinishedFilesOfTheProcess, LeaveAnIgnoredSignalIgnored) {
  struct sigaction action {};
  action.sa_handler = SIG_IGN;
  sigaction(GetParam(), &action, nullptr);
  const ListedFile name(number(), "a");
  raise(GetParam());
  EXPECT_EQ(names(), Names{"a"});
}

TEST(UnfinishedFile, LetsASecondSignalWaitForTheFirst) {
  const TemporaryFolder folder;
  const std::pair<int, Handler> handlers[] = {{SIGINT, raise_another}, {SIGTERM, note_second}};
  struct sigaction former[2] = {};
  for (int i = 0; i < 2; ++i) {
    struct sigaction action {};
    action.sa_handler = handlers[i].second;
    sigaction(handlers[i].first, &action, &former[i]);
  }
  history.clear();
  {
    const lossless::FileDescriptor number(
        lossless::open_in(AT_FDCWD, folder.path(), O_RDONLY | O_DIRECTORY));
    const ListedFile name(number.number(), "a");
    raise(SIGINT);
  }
  EXPECT_EQ(history, "first begins, first ends, second");
  for (int i = 0; i < 2; ++i) sigaction(handlers[i].first, &former[i], nullptr);
}

INSTANTIATE_TEST_SUITE_P(Signals, UnfinishedFilesOfTheProcess,
                         testing::Values(SIGINT, SIGTERM, SIGHUP),
                         [](const auto& row) { return std::string(sigabbrev_np(row.param)); });

}  // namespace
}  // namespace kelp::input::quill::tool
