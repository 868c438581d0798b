#include "quill-inp/files/provisional_name.hpp"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "quill-inp/process/file_descriptor.hpp"
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

/// A folder with a file "a", and the handlers that a program may have.
class ProvisionalNames : public testing::TestWithParam<int> {
 protected:
  ProvisionalNames() : folder_number_(open_in(AT_FDCWD, folder_.path(), O_RDONLY | O_DIRECTORY)) {
    folder_.write("a", "");
    struct sigaction action {};
    action.sa_handler = note_arrival;
    sigaction(GetParam(), &action, &former_);
    arrived = 0;
  }
  ~ProvisionalNames() override { sigaction(GetParam(), &former_, nullptr); }

  int number() const { return folder_number_.number(); }
  Names names() const { return names_in(folder_.path()); }
  const TemporaryFolder& folder() const { return folder_; }

 private:
  TemporaryFolder folder_;
  FileDescriptor folder_number_;
  struct sigaction former_ = {};
};

TEST_P(ProvisionalNames, AreRemovedOnASignalThatTheProgramThenGets) {
  const ProvisionalName name(number(), "a");
  raise(GetParam());
  EXPECT_EQ(arrived, GetParam());
  EXPECT_EQ(names(), Names());
}

TEST_P(ProvisionalNames, AreWaitedForWithTheSignalsCaught) {
  const Handler before = handler_of(GetParam());
  {
    const CaughtSignals caught;
    EXPECT_NE(handler_of(GetParam()), before);
    { const ProvisionalName name(number(), "a"); }
    EXPECT_NE(handler_of(GetParam()), before) << "after a name came and went";
  }
  EXPECT_EQ(handler_of(GetParam()), before);
}

TEST_P(ProvisionalNames, LeaveTheErrorOfAnInterruptedCallAlone) {
  struct sigaction action {};
  action.sa_handler = [](int signal) { arrived = signal; };
  sigaction(GetParam(), &action, nullptr);
  const ProvisionalName name(number(), "b");  // there is none, so removing it fails
  errno = EAGAIN;
  raise(GetParam());
  EXPECT_EQ(errno, EAGAIN);
  EXPECT_EQ(arrived, GetParam());
}

TEST_P(ProvisionalNames, AreAllRemoved) {
  folder().write("b", "");
  folder().write("c", "");
  const ProvisionalName a(number(), "a");
  std::optional<ProvisionalName> b(std::in_place, number(), "b");
  const ProvisionalName c(number(), "c");
  b->keep();
  raise(GetParam());
  EXPECT_EQ(names(), Names{"b"});
}

TEST_P(ProvisionalNames, GiveTheSignalsBackWhenThereAreNoMore) {
  {
    const ProvisionalName a(number(), "a");
    EXPECT_NE(handler_of(GetParam()), note_arrival);
    ProvisionalName b(number(), "b");
    b.keep();
    EXPECT_NE(handler_of(GetParam()), note_arrival);
  }
  EXPECT_EQ(handler_of(GetParam()), note_arrival);
  EXPECT_EQ(names(), Names());
}

TEST_P(ProvisionalNames, CanBeMadeAgainInAProgramThatGoesOnAfterTheSignal) {
  {
    const ProvisionalName name(number(), "a");
    raise(GetParam());
  }
  arrived = 0;
  folder().write("b", "");
  const ProvisionalName name(number(), "b");
  raise(GetParam());
  EXPECT_EQ(arrived, GetParam());
  EXPECT_EQ(names(), Names());
}

TEST_P(ProvisionalNames, LeaveAnIgnoredSignalIgnored) {
  struct sigaction action {};
  action.sa_handler = SIG_IGN;
  sigaction(GetParam(), &action, nullptr);
  const ProvisionalName name(number(), "a");
  raise(GetParam());
  EXPECT_EQ(names(), Names{"a"});
}

TEST(ProvisionalName, LetsASecondSignalWaitForTheFirst) {
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
    const FileDescriptor number(open_in(AT_FDCWD, folder.path(), O_RDONLY | O_DIRECTORY));
    const ProvisionalName name(number.number(), "a");
    raise(SIGINT);
  }
  EXPECT_EQ(history, "first begins, first ends, second");
  for (int i = 0; i < 2; ++i) sigaction(handlers[i].first, &former[i], nullptr);
}

INSTANTIATE_TEST_SUITE_P(Signals, ProvisionalNames, testing::Values(SIGINT, SIGTERM, SIGHUP),
                         [](const auto& row) { return std::string(sigabbrev_np(row.param)); });

}  // namespace
}  // namespace kelp::input::quill::tool
