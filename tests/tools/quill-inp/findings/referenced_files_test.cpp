#include "quill-inp/findings/referenced_files.hpp"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

#include "support/temporary_folder.hpp"

namespace kelp::input::quill::tool {

namespace {

using State = lint::ReferencedFile::State;

constexpr std::size_t piece = 256 * 1024;

const std::string helium = "1\n\nHe 0 0 0\n";

/// Returns the text, made as long as this by blanks at its end.
std::string padded(const std::string& text, std::size_t size) {
  return text + std::string(size - text.size(), ' ');
}

/// What is found of a file with this content.
lint::ReferencedFile found(const std::string& content, std::uint64_t limit = 10 * piece) {
  const TemporaryFolder folder;
  folder.write("a.xyz", content);
  return find_referenced_file(folder.path(), "a.xyz", limit);
}

TEST(ReferencedFiles, AreReadUpToTheEndOfTheirFirstFrame) {
  for (const std::size_t size : {piece - 1, piece})
    EXPECT_EQ(found(padded(helium, size)).content, padded(helium, size)) << size;
  for (const std::size_t size : {piece + 1, piece + 2, 2 * piece})
    EXPECT_EQ(found(padded(helium, size)).content, padded(helium, piece + 1)) << size;
}

TEST(ReferencedFiles, AreReadToTheirEndWhenTheFirstFrameIsLong) {
  std::string frame = "100000\n\n";
  for (int i = 0; i < 100'000; ++i) frame += "He 0 0 0\n";
  EXPECT_EQ(found(frame + helium).content, frame + helium);
}

TEST(ReferencedFiles, AreNotReadWhenTheyAreTooLarge) {
  for (const std::size_t limit : {helium.size(), piece - 1, piece, piece + 1, 2 * piece}) {
    EXPECT_EQ(found(padded(helium, limit), limit).state, State::Read) << limit;
    const lint::ReferencedFile file = found(padded(helium, limit + 1), limit);
    EXPECT_EQ(file.state, State::Unreadable) << limit;
    EXPECT_EQ(file.reason, "it is too large, see --max-size") << limit;
    EXPECT_EQ(file.content, "") << limit;
  }
}

}  // namespace

}  // namespace kelp::input::quill::tool
