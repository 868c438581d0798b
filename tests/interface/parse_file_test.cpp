#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <future>
#include <iterator>
#include <string>
#include <vector>

#include "interface/expected.hpp"
#include "kelp/input/quill/quill.hpp"
#include "support/comparison.hpp"
#include "support/printing.hpp"
#include "support/temporary_folder.hpp"

namespace kelp::input::quill {
namespace {

using namespace std::string_literals;

using Kind = PostCommandKind;

ParseResult not_opened(const std::string& path) {
  return ParseResult(QuillInput(), false, "Failed to open QUILL input file: " + path);
}

TEST(ParseFile, ReadsAFileAsTheTextInIt) {
  const TemporaryFolder folder;
  const std::string path =
      folder.write("job.qin", "#opt(maxiter=50)\n\n0 1\nO 0 0 0.1173\nB 1 2\n");
  EXPECT_EQ(parse_file(path), read_as({{list("opt", {{"maxiter", "50"}})},
                                       charged(0, 1, atoms({{"O", 0, 0, 0.1173}})),
                                       {constraint(Kind::BondConstraint, {1, 2}, "B 1 2")}}));
}

TEST(ParseFile, NumbersLinesAsInTheFile) {
  const TemporaryFolder folder;
  EXPECT_EQ(parse_file(folder.write("job.qin", "\n#\n\nC x\n")),
            read_as({{flag("")}},
                    {"Line 2: empty QUILL header command",
                     "Line 4: ignored unrecognized QUILL post-processing line", no_section}));
}

TEST(ParseFile, ReadsAnEmptyFileAsAnEmptyText) {
  const TemporaryFolder folder;
  EXPECT_EQ(parse_file(folder.write("empty", "")), read_as({}, {no_section}));
}

TEST(ParseFile, ReadsLineEndsOfTwoBytes) {
  const TemporaryFolder folder;
  EXPECT_EQ(
      parse_file(folder.write("job.qin", "#opt\r\n\r\n0 1\r\nXYZ a b.xyz\r\n\r\nXYZ\r\nnote\r\n")),
      read_as({{flag("opt")}, charged(0, 1, files({"a b.xyz"})), {raw("note")}},
              {"Line 6: XYZ reference has no file path"}));
}

TEST(ParseFile, ReadsALastLineWithoutItsEnd) {
  const TemporaryFolder folder;
  EXPECT_EQ(parse_file(folder.write("job.qin", "#opt\n0 1\nPOST a b")),
            read_as({{flag("opt")}, charged(0, 1), {post_file("a b", "POST a b")}}));
}

TEST(ParseFile, ReadsEveryByte) {
  const TemporaryFolder folder;
  const std::string path = folder.write("job.qin", "0 1\nPOST \x1A\0\x80\xFF\n\x1A\n"s);
  EXPECT_EQ(parse_file(path),
            read_as({{},
                     charged(0, 1),
                     {post_file("\x1A\0\x80\xFF"s, "POST \x1A\0\x80\xFF"s), raw("\x1A")}}));
}

TEST(ParseFile, ReadsAFileThroughALink) {
  const TemporaryFolder folder;
  std::filesystem::create_symlink(folder.write("job.qin", "0 1\n"), folder.path("link"));
  EXPECT_EQ(parse_file(folder.path("link")), read_as({{}, charged(0, 1)}));
}

TEST(ParseFile, LeavesTheFileAsItIs) {
  const TemporaryFolder folder;
  const std::string path = folder.write("job.qin", "#opt\n");
  EXPECT_TRUE(parse_file(path).ok);
  EXPECT_EQ(parse_file(path), read_as({{flag("opt")}}, {no_section}));
  EXPECT_EQ(std::filesystem::file_size(path), 5U);
}

std::ptrdiff_t count_open_files() {
  return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
}

TEST(ParseFile, LeavesNoFileOpen) {
  const TemporaryFolder folder;
  const std::string path = folder.write("job.qin", "#opt\n");
  const std::ptrdiff_t before = count_open_files();
  EXPECT_TRUE(parse_file(path).ok);
  EXPECT_FALSE(parse_file(folder.path()).ok);
  EXPECT_FALSE(parse_file(folder.path("missing")).ok);
  EXPECT_EQ(count_open_files(), before);
}

TEST(ParseFile, ReportsAMissingFile) {
  EXPECT_EQ(parse_file("nofile"), not_opened("nofile"));
  EXPECT_EQ(parse_file("nofile").error, "Failed to open QUILL input file: nofile");
}

TEST(ParseFile, ReportsAMissingFolder) {
  const TemporaryFolder folder;
  const std::string path = folder.path("missing/job.qin");
  EXPECT_EQ(parse_file(path), not_opened(path));
}

TEST(ParseFile, ReportsThePathExactlyAsItWasPassed) {
  for (const std::string& path : {""s, " no file "s, "./no//file/.."s, "\xC3\xA9\xFF"s, "%s%n"s}) {
    EXPECT_EQ(parse_file(path), not_opened(path));
  }
}

TEST(ParseFile, ReportsAPathThatIsTooLong) {
  const std::string path(100000, 'a');
  EXPECT_EQ(parse_file(path), not_opened(path));
}

TEST(ParseFile, ReportsAFolder) {
  const TemporaryFolder folder;
  EXPECT_EQ(parse_file(folder.path()), not_opened(folder.path()));
  EXPECT_EQ(parse_file("."), not_opened("."));
}

TEST(ParseFile, ReportsAFileThatOpensAndCannotBeRead) {
  // This file is read from address 0, where no memory is mapped.
  EXPECT_EQ(parse_file("/proc/self/mem"), not_opened("/proc/self/mem"));
}

TEST(ParseFile, ReportsAPathWithANulByteWhole) {
  const TemporaryFolder folder;
  const std::string path = folder.write("job.qin", "#opt\n");
  for (const std::string& longer : {path + "\0"s, path + "\0.old"s, "\0"s + path}) {
    EXPECT_EQ(parse_file(longer), not_opened(longer));
  }
}

TEST(ParseFile, ReadsTheNullDeviceAsAnEmptyText) {
  EXPECT_EQ(parse_file("/dev/null"), read_as({}, {no_section}));
}

/// A writer whose reader has gone gets an error instead of a signal as long as this object lives.
class IgnoredPipeSignal {
 public:
  IgnoredPipeSignal() : before_(std::signal(SIGPIPE, SIG_IGN)) {}
  IgnoredPipeSignal(const IgnoredPipeSignal&) = delete;
  IgnoredPipeSignal& operator=(const IgnoredPipeSignal&) = delete;
  ~IgnoredPipeSignal() { std::signal(SIGPIPE, before_); }

 private:
  void (*before_)(int);
};

TEST(ParseFile, ReadsAPipeToItsEnd) {
  const IgnoredPipeSignal ignored;
  const TemporaryFolder folder;
  const std::string path = folder.path("pipe");
  ASSERT_EQ(mkfifo(path.c_str(), S_IRUSR | S_IWUSR), 0);
  // Three lines, each longer than a pipe's buffer.
  const std::string line(300000, 'x');
  const std::future<void> writer = std::async(std::launch::async, [&] {
    std::ofstream pipe(path);
    for (int i = 0; i < 3; ++i) pipe << line << std::endl;
  });
  const ParseResult result = parse_file(path);
  // If the library has not opened the pipe, the writer still waits for a reader.
  while (writer.wait_for(std::chrono::milliseconds(1)) != std::future_status::ready)
    close(open(path.c_str(), O_RDONLY | O_NONBLOCK));
  EXPECT_TRUE(result.ok);
  EXPECT_EQ(result.warnings, std::vector<std::string>{no_section});
  ASSERT_EQ(result.input.post_commands.size(), 3U);
  for (const PostCommand& command : result.input.post_commands)
    EXPECT_TRUE(command == raw(line));  // a difference would print the whole line
}

/// A line of the large file: its number, which makes every line different, and a filling.
std::string large_line(int number) {
  constexpr std::size_t size = std::size_t{1024} * 1024;
  std::string line = "line-" + std::to_string(number) + "-";
  line.resize(size - 1, 'x');
  return line;
}

TEST(ParseFile, ReadsAFileOfAHundredMegabytes) {
  constexpr int lines = 100;
  const TemporaryFolder folder;
  const std::string path = folder.path("large");
  {
    std::ofstream file(path, std::ios_base::binary);
    for (int i = 0; i < lines; ++i) file << large_line(i) << '\n';
    ASSERT_TRUE(file.flush());
  }
  ASSERT_EQ(std::filesystem::file_size(path), std::uintmax_t{100} * 1024 * 1024);

  const ParseResult result = parse_file(path);
  EXPECT_TRUE(result.ok);
  EXPECT_EQ(result.warnings, std::vector<std::string>{no_section});
  ASSERT_EQ(result.input.post_commands.size(), std::size_t{lines});
  for (int i = 0; i < lines; ++i)
    EXPECT_TRUE(result.input.post_commands[static_cast<std::size_t>(i)] == raw(large_line(i)));
}

}  // namespace
}  // namespace kelp::input::quill
