#include "files/file_descriptor.hpp"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <cstdint>
#include <string>

#include "support/temporary_folder.hpp"

namespace kelp::input::quill::lossless {
namespace {

std::string text_of_size(std::size_t size) {
  std::string text;
  for (std::size_t i = 0; i < size; ++i) text += static_cast<char>('a' + i % 26);
  return text;
}

struct Row {
  std::string_view name;
  std::size_t size;
  std::uint64_t limit;
  std::uint64_t expected;
  std::size_t read;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }

const Row rows[] = {
    {"AFileOfTheExpectedSize", 1000, 5000, 1000, 1000},
    {"AFileThatHasGrown", 1000, 5000, 10, 1000},
    {"AFileThatHasGrownBeyondAChunk", 3 * usual_chunk, 4 * usual_chunk, 10, 3 * usual_chunk},
    {"AFileThatHasShrunk", 10, 5000, 1000, 10},
    {"AnEmptyFile", 0, 5000, 0, 0},
    {"AFileOfUnknownSize", 1000, 5000, usual_chunk, 1000},
    {"AFileOfTheLargestSize", 1000, 1000, 1000, 1000},
    {"OneByteMoreThanTheLimit", 5000, 1000, 5000, 1001},
    {"OneByteMoreThanTheLimitOfAFileThatHasGrown", 5000, 1000, 10, 1001},
    {"OneByteOfALimitOfNone", 5000, 0, 5000, 1},
};

class ReadToEnd : public testing::TestWithParam<Row> {};

TEST_P(ReadToEnd, Gives) {
  const Row& row = GetParam();
  const TemporaryFolder folder;
  const std::string text = text_of_size(row.size);
  const FileDescriptor file(open_in(AT_FDCWD, folder.write("a", text), O_RDONLY));
  EXPECT_EQ(read_to_end(file.number(), row.limit, row.expected), text.substr(0, row.read));
}

INSTANTIATE_TEST_SUITE_P(Table, ReadToEnd, testing::ValuesIn(rows),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(ReadToEnd, TakesNoMoreMemoryThanAFileOfTheExpectedSizeNeeds) {
  const TemporaryFolder folder;
  const FileDescriptor file(open_in(AT_FDCWD, folder.write("a", text_of_size(1000)), O_RDONLY));
  EXPECT_EQ(read_to_end(file.number(), usual_chunk, 1000).capacity(), 1001U);
}

TEST(ReadToEnd, GathersThePiecesOfAPipe) {
  std::array<int, 2> ends{};
  ASSERT_EQ(pipe(ends.data()), 0);
  const FileDescriptor reading(ends[0]);
  FileDescriptor writing(ends[1]);
  write_everything(writing.number(), "#opt\n");
  write_everything(writing.number(), "0 1\n");
  writing.close();
  EXPECT_EQ(read_to_end(reading.number(), 100), "#opt\n0 1\n");
}

}  // namespace
}  // namespace kelp::input::quill::lossless
