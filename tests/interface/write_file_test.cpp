#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <typeinfo>

#include "kelp/input/quill/document.hpp"
#include "support/comparison.hpp"
#include "support/printing.hpp"
#include "support/temporary_folder.hpp"

namespace kelp::input::quill {

namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;

const std::string failure = "Failed to open QUILL input for writing: ";

std::string content_of(const fs::path& path) {
  std::string content(fs::file_size(path), '\0');
  std::ifstream file(path, std::ios::binary);
  file.read(content.data(), static_cast<std::streamsize>(content.size()));
  return content;
}

QuillInput sample() {
  return QuillInput{{{"opt", HeaderCommandKind::ParameterList, {}, {{"maxiter", "50"}}}},
                    {GeometryKind::Atoms, 0, 1, true, {{"O", 0.0, 0.0, 0.1173}}, {}},
                    {{PostCommandKind::AtomConstraint, {1}}}};
}

const std::string sample_text =
    "#opt(maxiter=50)\n"
    "\n"
    "0 1\n"
    "O        0.000000      0.000000      0.117300\n"
    "\n"
    "C 1\n";

/// A text of several megabytes, more than any file buffer holds.
QuillInput large_sample() {
  QuillInput input = sample();
  input.geometry.atoms.assign(100'000, {"H", 1.0, 2.0, 3.0});
  return input;
}

/// The whole message of the exception that writing throws. It is taken in the expected length,
/// because what() gives a C string and the path in it may hold a NUL. Only libstdc++ keeps what
/// comes after it.
std::string message_of_writing(const QuillInput& input, const std::string& path) {
  try {
    input.write_file(path);
  } catch (const std::runtime_error& error) {
    EXPECT_EQ(typeid(error), typeid(std::runtime_error)) << "something derived from it";
#ifdef __GLIBCXX__
    return std::string(error.what(), failure.size() + path.size());
#else
    return error.what() + path.substr(std::min(path.find('\0'), path.size()));
#endif
  }
  return "nothing was thrown";
}

class WriteFile : public testing::Test {
 protected:
  std::string path_to(const std::string& name) const { return folder_.path(name); }
  std::string existing(const std::string& name, std::string_view content) const {
    return folder_.write(name, content);
  }

  std::vector<std::string> names_in_folder() const {
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder_.path()))
      names.push_back(entry.path().filename().string());
    return names;
  }

 private:
  TemporaryFolder folder_;
};

TEST_F(WriteFile, CreatesTheFile) {
  const std::string path = path_to("new.qin");
  sample().write_file(path);
  EXPECT_EQ(content_of(path), sample_text);
  EXPECT_THAT(names_in_folder(), testing::ElementsAre("new.qin"));
}

TEST_F(WriteFile, TruncatesALongerFile) {
  const std::string path = existing("old.qin", std::string(10'000, 'x'));
  sample().write_file(path);
  EXPECT_EQ(content_of(path), sample_text);
}

TEST_F(WriteFile, ReplacesAShorterFile) {
  const std::string path = existing("old.qin", "x");
  sample().write_file(path);
  EXPECT_EQ(content_of(path), sample_text);
}

TEST_F(WriteFile, MakesAnEmptyFileOfAnEmptyDocument) {
  const std::string path = path_to("empty.qin");
  QuillInput().write_file(path);
  EXPECT_TRUE(fs::is_regular_file(path));
  EXPECT_EQ(content_of(path), "");
}

TEST_F(WriteFile, EmptiesAFileForAnEmptyDocument) {
  const std::string path = existing("old.qin", "#opt\n");
  QuillInput().write_file(path);
  EXPECT_EQ(content_of(path), "");
}

TEST_F(WriteFile, WritesALargeTextWhole) {
  const std::string path = path_to("large.qin");
  large_sample().write_file(path);
  EXPECT_EQ(content_of(path), large_sample().to_string());
}

TEST_F(WriteFile, WritesEveryByteAsItIs) {
  const std::string path = path_to("bytes.qin");
  const QuillInput input{{{"a\0b"s}}, {}, {{PostCommandKind::Raw, {}, {}, {}, {}, "\r\n\x1A\xFF"}}};
  input.write_file(path);
  EXPECT_EQ(content_of(path), "#a\0b\n\n\r\n\x1A\xFF\n"s);
}

TEST_F(WriteFile, FollowsASymbolicLink) {
  const std::string target = existing("target.qin", "before");
  const std::string link = path_to("link.qin");
  fs::create_symlink(target, link);
  sample().write_file(link);
  EXPECT_TRUE(fs::is_symlink(link));
  EXPECT_EQ(content_of(target), sample_text);
}

TEST_F(WriteFile, TakesAPathWithBlanksAndBytesAbove127) {
  const std::string path = path_to("my \xC3\xA4 file");
  sample().write_file(path);
  EXPECT_EQ(content_of(path), sample_text);
}

TEST_F(WriteFile, LeavesTheDocumentAsItIs) {
  const QuillInput input = sample();
  input.write_file(path_to("new.qin"));
  EXPECT_EQ(message_of_writing(input, path_to("missing/new.qin")),
            failure + path_to("missing/new.qin"));
  EXPECT_EQ(input, sample());
}

TEST_F(WriteFile, ThrowsForAMissingDirectoryAndCreatesNone) {
  const std::string path = path_to("missing/new.qin");
  EXPECT_EQ(message_of_writing(sample(), path), failure + path);
  EXPECT_THAT(names_in_folder(), testing::IsEmpty());
}

TEST_F(WriteFile, ThrowsWithThePathAsGiven) {
  const std::string path = path_to("missing//./other/../new file.qin");
  EXPECT_EQ(message_of_writing(sample(), path), failure + path);
}

TEST_F(WriteFile, ThrowsForARelativePathAsGiven) {
  const std::string path = "no-such-folder/new.qin";
  EXPECT_EQ(message_of_writing(sample(), path),
            "Failed to open QUILL input for writing: no-such-folder/new.qin");
}

TEST_F(WriteFile, ThrowsForADirectory) {
  const std::string path = path_to("folder");
  fs::create_directory(path);
  EXPECT_EQ(message_of_writing(sample(), path), failure + path);
  EXPECT_TRUE(fs::is_empty(path));
}

TEST_F(WriteFile, ThrowsForAFileInPlaceOfADirectory) {
  const std::string file = existing("file", "before");
  const std::string path = file + "/new.qin";
  EXPECT_EQ(message_of_writing(sample(), path), failure + path);
  EXPECT_EQ(content_of(file), "before");
}

TEST_F(WriteFile, ThrowsForAnEmptyPath) { EXPECT_EQ(message_of_writing(sample(), ""), failure); }

TEST_F(WriteFile, ThrowsForANulInThePathInsteadOfWritingToItsFirstPart) {
  const std::string path = path_to("new.qin") + "\0.bak"s;
  EXPECT_EQ(message_of_writing(sample(), path), failure + path);
  EXPECT_THAT(names_in_folder(), testing::IsEmpty());
}

TEST_F(WriteFile, ThrowsForANulAtEitherEndOfThePath) {
  const std::string last = path_to("new.qin") + "\0"s;
  const std::string first = "\0"s + path_to("new.qin");
  EXPECT_EQ(message_of_writing(sample(), last), failure + last);
  EXPECT_EQ(message_of_writing(sample(), first), failure + first);
  EXPECT_THAT(names_in_folder(), testing::IsEmpty());
}

TEST_F(WriteFile, LeavesAnExistingFileAloneWhenThePathGoesOnPastANul) {
  const std::string old = existing("old.qin", "before");
  const std::string path = old + "\0"s;
  EXPECT_EQ(message_of_writing(sample(), path), failure + path);
  EXPECT_EQ(content_of(old), "before");
}

TEST_F(WriteFile, ReturnsNormallyWhenTheDiskIsFull) {
  ASSERT_TRUE(fs::exists("/dev/full"));
  EXPECT_NO_THROW(sample().write_file("/dev/full"));
  EXPECT_NO_THROW(large_sample().write_file("/dev/full"));
  EXPECT_NO_THROW(QuillInput().write_file("/dev/full"));
}

}  // namespace

}  // namespace kelp::input::quill
