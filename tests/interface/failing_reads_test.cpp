// A file that can be opened but not read to its end is treated as one that cannot be opened: no
// part of it becomes a document. One that changes its length meanwhile is read to its end.

#include "support/failing_reads.hpp"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstddef>
#include <string>

#include "kelp/input/quill/quill.hpp"
#include "support/comparison.hpp"
#include "support/printing.hpp"
#include "support/temporary_folder.hpp"

namespace kelp::input::quill {
namespace {

std::string text_of_many_reads() {
  std::string text = "#opt\n0 1\n";
  for (int i = 0; i < 2000; ++i) text += "H 0.0 0.0 " + std::to_string(i) + ".5\n";
  return text;
}

ParseResult not_opened(const std::string& path) {
  ParseResult result;
  result.error = "Failed to open QUILL input file: " + path;
  return result;
}

/// Calls `expect` with what is read while the first, the second, the third ... call of read()
/// fails, as long as there is one. Returns how many failed.
template <typename Expect>
std::size_t fail_each_read(const std::string& path, int error, Expect expect) {
  for (std::size_t failing = 1;; ++failing) {
    ParseResult result;
    std::size_t reads = 0;
    {
      const ReadWindow window(failing, error);
      result = parse_file(path);
      reads = window.reads();
    }
    if (reads < failing) return failing - 1;
    expect(result);
  }
}

TEST(AReadThatFails, LeavesNoHalfADocument) {
  const TemporaryFolder folder;
  const std::string path = folder.write("in.qin", text_of_many_reads());
  const std::size_t failures = fail_each_read(
      path, EIO, [&](const ParseResult& result) { EXPECT_EQ(result, not_opened(path)); });
  EXPECT_GT(failures, 20U) << "the file was read in too few pieces";
}

TEST(AReadThatIsInterrupted, IsTriedAgain) {
  const TemporaryFolder folder;
  const std::string text = text_of_many_reads();
  const ParseResult expected = parse_string(text);
  const std::string path = folder.write("in.qin", text);
  const std::size_t failures = fail_each_read(
      path, EINTR, [&](const ParseResult& result) { EXPECT_TRUE(result == expected); });
  EXPECT_GT(failures, 20U) << "the file was read in too few pieces";
}

TEST(AReadOfFewBytes, IsFollowedByTheNext) {
  const TemporaryFolder folder;
  const std::string text = text_of_many_reads();
  const std::string path = folder.write("in.qin", text);
  ParseResult result;
  {
    const ReadWindow window(0, 0);
    result = parse_file(path);
  }
  EXPECT_TRUE(result == parse_string(text));
}

/// What is read of a file that gets another text before the third piece of it is read.
ParseResult read_while_it_becomes(const std::string& text, const std::string& other_text) {
  const TemporaryFolder folder;
  const std::string path = folder.write("in.qin", text);
  const ReadWindow window(3, [&] { folder.write("in.qin", other_text); });
  return parse_file(path);
}

TEST(AFileThatBecomesLongerWhileItIsRead, IsReadToItsNewEnd) {
  const std::string text = text_of_many_reads();
  const std::string longer = text + text;
  EXPECT_TRUE(read_while_it_becomes(text, longer) == parse_string(longer));
}

TEST(AFileThatBecomesShorterWhileItIsRead, EndsWhereItEnds) {
  const std::string text = text_of_many_reads();
  const std::string shorter = text.substr(0, text.size() / 2);
  EXPECT_TRUE(read_while_it_becomes(text, shorter) == parse_string(shorter));
}

}  // namespace
}  // namespace kelp::input::quill
