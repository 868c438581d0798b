#include "reader/file_content.hpp"

#include <gtest/gtest.h>

#include <cstddef>
#include <optional>
#include <string>

#include "support/temporary_folder.hpp"

namespace kelp::input::quill {
namespace {

using namespace std::string_literals;

std::string every_byte() {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
  return bytes;
}

/// Bytes with no period that a buffer's size could hide.
std::string bytes_of_size(std::size_t size) {
  std::string bytes(size, '\0');
  for (std::size_t i = 0; i < size; ++i) bytes[i] = static_cast<char>((i * i + i / 251) % 256);
  return bytes;
}

TEST(FileContent, IsEveryByteUnchanged) {
  const TemporaryFolder folder;
  const std::string content = every_byte() + "\r\n\r\n\n" + every_byte();
  EXPECT_EQ(read_file_content(folder.write("bytes", content)), content);
}

TEST(FileContent, IsEmptyForAnEmptyFile) {
  const TemporaryFolder folder;
  EXPECT_EQ(read_file_content(folder.write("empty", "")), "");
}

class FileOfSize : public testing::TestWithParam<std::size_t> {};

TEST_P(FileOfSize, IsReadWhole) {
  const TemporaryFolder folder;
  const std::string content = bytes_of_size(GetParam());
  const std::optional<std::string> read = read_file_content(folder.write("bytes", content));
  ASSERT_TRUE(read.has_value());
  EXPECT_EQ(read->size(), content.size());
  EXPECT_TRUE(*read == content);  // a difference would print the whole file
}

constexpr std::size_t chunk = std::size_t{64} * 1024;
INSTANTIATE_TEST_SUITE_P(AroundTheSizesOfBuffers, FileOfSize,
                         testing::Values(1, 2, 8190, 8191, 8192, 8193, chunk - 1, chunk, chunk + 1,
                                         3 * chunk + 5));

TEST(FileContent, TakesTheRoomOfTheFileAndNoMore) {
  const TemporaryFolder folder;
  const std::string content = bytes_of_size(3 * chunk + 5);
  const std::optional<std::string> read = read_file_content(folder.write("bytes", content));
  ASSERT_TRUE(read.has_value());
  constexpr std::size_t rounding = 16;  // by which some standard libraries allocate
  EXPECT_LT(read->capacity(), content.size() + rounding);
}

TEST(FileContent, DoesNotDependOnTheSizeThatTheFileSystemTells) {
  // Files under /proc have the size 0, whatever can be read from them.
  const std::optional<std::string> read = read_file_content("/proc/self/cmdline");
  ASSERT_TRUE(read.has_value());
  EXPECT_NE(read->find("reader_test"), std::string::npos) << testing::PrintToString(*read);
}

TEST(FileContent, IsNothingWithoutAFile) {
  const TemporaryFolder folder;
  EXPECT_EQ(read_file_content(folder.path("missing")), std::nullopt);
  EXPECT_EQ(read_file_content(folder.path("missing/file")), std::nullopt);
  EXPECT_EQ(read_file_content(""), std::nullopt);
}

TEST(FileContent, IsNothingForAFolder) {
  const TemporaryFolder folder;
  EXPECT_EQ(read_file_content(folder.path()), std::nullopt);
}

TEST(FileContent, IsNothingForAPathBelowAFile) {
  const TemporaryFolder folder;
  EXPECT_EQ(read_file_content(folder.write("file", "#sp\n") + "/below"), std::nullopt);
}

TEST(FileContent, IsNothingWhenReadingFails) {
  // Nothing is mapped at the address 0, so the file opens and its first byte cannot be read.
  EXPECT_EQ(read_file_content("/proc/self/mem"), std::nullopt);
}

TEST(FileContent, IsNothingForAPathWithANulByteEvenIfTheTextBeforeItNamesAFile) {
  const TemporaryFolder folder;
  const std::string path = folder.write("file", "#sp\n");
  EXPECT_EQ(read_file_content(path + "\0"s), std::nullopt);
  EXPECT_EQ(read_file_content(path + "\0more"s), std::nullopt);
  EXPECT_EQ(read_file_content("\0"s + path), std::nullopt);
}

TEST(FileContent, IsEmptyForTheNullDevice) { EXPECT_EQ(read_file_content("/dev/null"), ""); }

}  // namespace
}  // namespace kelp::input::quill
