// The system calls of a write in place, one after another, and how it opens files.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

#include "tools/quill-inp/support/faulty_write.hpp"
#include "tools/quill-inp/support/files.hpp"
#include "tools/quill-inp/support/program.hpp"

namespace kelp::input::quill::tool {
namespace {

const bool is_in_memory = use_memory_for_temporary_files();

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
  EXPECT_EQ(
      write.run_with_fault(opening(calls_of_a_write()), "run rm a.qin; mkfifo a.qin"),
      ended(2, "",
            "a.qin: error: is a pipe, and only a regular file can be changed in place; put the "
            "text into a file first, or have the result printed instead\n"));
}

}  // namespace
}  // namespace kelp::input::quill::tool
