#include "files/plain_file.hpp"

#include <gtest/gtest.h>

#include <cstddef>
#include <optional>
#include <string>
#include <utility>

#include "support/file_content.hpp"
#include "support/temporary_folder.hpp"

namespace kelp::input::quill {
namespace {

using namespace std::string_literals;

const std::string text = "O 0 0 0.1173\r\nH\0\x1A\xFF\n"s;

/// The next bytes of a file, at most `size` of them; nothing if they cannot be read.
std::optional<std::string> next_bytes(PlainFile& file, std::size_t size) {
  std::string bytes(size, '?');
  const std::optional<std::size_t> count = file.read(bytes.data(), size);
  if (!count) return std::nullopt;
  bytes.resize(*count);
  return bytes;
}

TEST(PlainFile, IsReadInPiecesUpToItsEnd) {
  const TemporaryFolder folder;
  std::optional<PlainFile> file = PlainFile::for_reading(folder.write("in", text));
  ASSERT_TRUE(file.has_value());
  EXPECT_EQ(file->size(), text.size());
  EXPECT_EQ(next_bytes(*file, 5), text.substr(0, 5));
  EXPECT_EQ(next_bytes(*file, 100), text.substr(5));
  EXPECT_EQ(next_bytes(*file, 100), "");
}

TEST(PlainFile, IsWrittenByteForByte) {
  const TemporaryFolder folder;
  const std::string path = folder.write("out", "a longer text that was there before");
  {
    std::optional<PlainFile> file = PlainFile::for_writing(path);
    ASSERT_TRUE(file.has_value());
    EXPECT_EQ(file_content(path), "") << "it is emptied when it is opened";
    EXPECT_TRUE(file->write(text));
    EXPECT_TRUE(file->write(""));
    EXPECT_TRUE(file->write(text));
  }
  EXPECT_EQ(file_content(path), text + text);
}

TEST(PlainFile, GivesNothingWhenItCannotBeRead) {
  const TemporaryFolder folder;
  std::optional<PlainFile> file = PlainFile::for_writing(folder.path("out"));
  ASSERT_TRUE(file.has_value());
  EXPECT_EQ(next_bytes(*file, 1), std::nullopt);
}

TEST(PlainFile, SaysWhenItCannotBeWritten) {
  const TemporaryFolder folder;
  const std::string path = folder.write("in", text);
  std::optional<PlainFile> file = PlainFile::for_reading(path);
  ASSERT_TRUE(file.has_value());
  EXPECT_FALSE(file->write("#sp\n"));
  EXPECT_EQ(file_content(path), text);
}

TEST(PlainFile, CanBeHandedOn) {
  const TemporaryFolder folder;
  std::optional<PlainFile> file = PlainFile::for_reading(folder.write("in", text));
  ASSERT_TRUE(file.has_value());
  PlainFile other(std::move(*file));
  file.reset();
  EXPECT_EQ(next_bytes(other, 100), text);
}

TEST(PlainFile, IsNotOpenedForAPathWithANulOrOneThatNamesNothing) {
  const TemporaryFolder folder;
  const std::string path = folder.write("in", text);
  for (const std::string& name : {""s, path + "\0"s, folder.path("missing/file"), folder.path()}) {
    EXPECT_FALSE(PlainFile::for_writing(name).has_value()) << testing::PrintToString(name);
  }
  EXPECT_FALSE(PlainFile::for_reading(path + "\0"s).has_value());
  EXPECT_FALSE(PlainFile::for_reading(folder.path("missing")).has_value());
  EXPECT_EQ(file_content(path), text);
}

}  // namespace
}  // namespace kelp::input::quill
