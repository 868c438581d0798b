// Several runs of the program, or threads of one, on the same file: they follow one another, and
// none writes over what another has written.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <chrono>
#include <cstdio>
#include <string>
#include <thread>

#include "files/file_descriptor.hpp"
#include "support/temporary_folder.hpp"
#include "tools/quill-inp/support/files.hpp"
#include "tools/quill-inp/support/program.hpp"

namespace kelp::input::quill::tool {
namespace {

using std::chrono::milliseconds;

constexpr milliseconds a_moment(50);

/// Another program that holds the lock of a file.
class Holder {
 public:
  explicit Holder(const std::string& path) : file_(lossless::open_in(AT_FDCWD, path, O_RDONLY)) {
    EXPECT_EQ(flock(file_.number(), LOCK_EX), 0);
  }

  void release() { file_.close(); }

 private:
  lossless::FileDescriptor file_;
};

const char* const three_writers =
    "for name in a b c; do\n"
    "  ( for i in 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20; do\n"
    "      quill-inp set -q -i -j2 job.qin other.qin opt.$name$i=$i || echo failed\n"
    "    done ) &\n"
    "done\n"
    "wait\n";

TEST(ThreeWritersOfTheSameFiles, LoseNothing) {
  use_memory_for_temporary_files();
  const TemporaryFolder folder;
  for (const char* name : {"job.qin", "other.qin"}) folder.write(name, "#opt(tight)\n\n0 1\n");
  EXPECT_EQ(run_shell(folder.path(), three_writers).out, "");
  std::string keys;
  std::string values;
  for (const char* name : {"a", "b", "c"}) {
    for (int i = 1; i <= 20; ++i) {
      keys += std::string(" opt.") + name + std::to_string(i);
      values += std::to_string(i) + "\n";
    }
  }
  for (const char* name : {"job.qin", "other.qin"})
    EXPECT_EQ(run_shell(folder.path(), std::string("quill-inp get ") + name + keys).out, values)
        << name;
  EXPECT_EQ(names_in(folder.path()), (std::vector<std::string>{"job.qin", "other.qin"}));
}

TEST(FileLock, IsWaitedForOnlySoLong) {
  const TemporaryFolder folder;
  const Holder holder(folder.write("a.qin", water));
  const auto change = [&](const std::string& seconds) {
    return run_in(folder.path(), {"set", "-q", "-i", "--lock-timeout", seconds, "a.qin", "a=b"});
  };
  EXPECT_EQ(change("0"), ended(2, "",
                               "a.qin: error: another program is changing it; waited 0 "
                               "seconds, see --lock-timeout\n"));
  EXPECT_EQ(change("1"), ended(2, "",
                               "a.qin: error: another program is changing it; waited 1 "
                               "second, see --lock-timeout\n"));
  EXPECT_EQ(content_of(folder.path("a.qin")), water);
}

TEST(FileLock, IsNotNeededForReading) {
  const TemporaryFolder folder;
  const Holder holder(folder.write("a.qin", water));
  EXPECT_EQ(run_in(folder.path(), {"get", "a.qin", "model"}), ended(0, "m1\n", ""));
  EXPECT_EQ(run_in(folder.path(), {"set", "a.qin", "model=m2"}), ended(0, changed_water(), ""));
}

TEST(FileLock, IsTakenAgainForTheFileThatHasTheNameThen) {
  const TemporaryFolder folder;
  Holder holder(folder.write("a.qin", water));
  const std::string other = folder.write("b.qin", "#model = other\n0 1\n");
  std::thread replacing([&] {
    std::this_thread::sleep_for(a_moment);
    EXPECT_EQ(std::rename(other.c_str(), folder.path("a.qin").c_str()), 0);
    holder.release();
  });
  EXPECT_EQ(run_in(folder.path(), {"set", "-q", "-i", "a.qin", "device=gpu"}), ended(0, "", ""));
  replacing.join();
  EXPECT_EQ(content_of(folder.path("a.qin")), "#model = other\n#device = gpu\n0 1\n");
}

}  // namespace
}  // namespace kelp::input::quill::tool
