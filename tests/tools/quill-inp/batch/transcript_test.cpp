#include "quill-inp/batch/transcript.hpp"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace kelp::input::quill::tool {
namespace {

TEST(Transcript, KeepsBothStreamsInTheOrderOfWriting) {
  Transcript transcript;
  transcript.out() << "a" << 'b' << 12;
  transcript.err() << "c" << std::flush << "d";
  transcript.out().put('\n');
  std::vector<std::pair<bool, std::string>> pieces;
  for (const Transcript::Piece& piece : transcript.pieces())
    pieces.emplace_back(piece.is_output, piece.text);
  const std::vector<std::pair<bool, std::string>> expected = {
      {true, "ab12"}, {false, "cd"}, {true, "\n"}};
  EXPECT_EQ(pieces, expected);
}

TEST(Transcript, TakesEveryByte) {
  Transcript transcript;
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
  for (const char byte : bytes) transcript.out().put(byte);
  EXPECT_TRUE(transcript.out().good());
  ASSERT_EQ(transcript.pieces().size(), 1U);
  EXPECT_EQ(transcript.pieces()[0].text, bytes);
}

}  // namespace
}  // namespace kelp::input::quill::tool
