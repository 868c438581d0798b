#include "kelp/input/quill/lossless/whole_file.hpp"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>

#include "support/temporary_folder.hpp"

namespace kelp::input::quill::lossless {
namespace {

using Kind = FileFailure::Kind;

constexpr const char* text = "#opt\n\n0 1\nHe 0 0 0\n";

std::string content_of(const std::string& path) {
  std::ifstream file(path, std::ios_base::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::optional<FileFailure> failure_of_writing(const std::string& path,
                                              const WriteOptions& options = {}) {
  try {
    write_whole_file(path, text, options);
  } catch (const FileError& error) {
    EXPECT_EQ(error.path(), path);
    return error.failure();
  }
  return std::nullopt;
}

class WholeFile : public testing::Test {
 protected:
  const TemporaryFolder& folder() const { return folder_; }
  std::string path() const { return folder_.path("a.qin"); }

 private:
  TemporaryFolder folder_;
};

TEST_F(WholeFile, IsNewWithTheRightsOfNewFiles) {
  const mode_t former = umask(027);
  EXPECT_TRUE(write_whole_file(path(), text).is_written);
  umask(former);
  EXPECT_EQ(content_of(path()), text);
  struct stat state {};
  ASSERT_EQ(stat(path().c_str(), &state), 0);
  EXPECT_EQ(state.st_mode & 07777U, 0640U);
}

TEST_F(WholeFile, WithTheSameTextIsLeftAlone) {
  folder().write("a.qin", text);
  for (const ExistingFile existing : {ExistingFile::IsRefused, ExistingFile::IsReplaced})
    EXPECT_FALSE(write_whole_file(path(), text, {existing}).is_written);
}

TEST_F(WholeFile, WithAnotherTextIsReplacedOnlyIfWanted) {
  for (const std::string& old_text : {std::string("#sp\n"), text + std::string("more\n")}) {
    folder().write("a.qin", old_text);
    EXPECT_EQ(failure_of_writing(path()).value().kind, Kind::Exists);
    EXPECT_EQ(content_of(path()), old_text);
    EXPECT_TRUE(write_whole_file(path(), text, {ExistingFile::IsReplaced}).is_written);
    EXPECT_EQ(content_of(path()), text);
  }
}

TEST_F(WholeFile, IsNotWrittenWhereThereCanBeNone) {
  ASSERT_EQ(mkfifo(folder().path("pipe").c_str(), 0600), 0);
  const struct {
    std::string path;
    Kind kind;
    int system_code;
  } rows[] = {
      {"", Kind::NotAName, 0},
      {folder().path() + "/", Kind::NotAName, 0},
      {std::string("a\0b", 3), Kind::NulInName, 0},
      {folder().path(), Kind::ExistsNotRegular, 0},
      {folder().path("pipe"), Kind::ExistsNotRegular, 0},
      {"/dev/null", Kind::ExistsNotRegular, 0},
      {folder().path("none/a.qin"), Kind::FolderNotOpened, ENOENT},
      {folder().path("pipe") + "/a.qin", Kind::NotExamined, ENOTDIR},
  };
  for (const auto& row : rows) {
    const FileFailure failure =
        failure_of_writing(row.path, {ExistingFile::IsReplaced}).value_or(FileFailure());
    EXPECT_EQ(failure.kind, row.kind) << row.path;
    EXPECT_EQ(failure.system_code, row.system_code) << row.path;
  }
}

TEST_F(WholeFile, WaitsForWhoIsReplacingIt) {
  folder().write("a.qin", "#sp\n");
  const FileToReplace other = open_to_replace(path());
  WriteOptions options{ExistingFile::IsReplaced};
  options.patience = std::chrono::milliseconds(0);
  EXPECT_EQ(failure_of_writing(path(), options).value().kind, Kind::Locked);
}

TEST_F(WholeFile, IsInAFolderThatCanBeFlushedLater) {
  write_whole_file(path(), text, {ExistingFile::IsRefused, FolderFlush::ByCaller});
  EXPECT_EQ(content_of(path()), text);
  EXPECT_NO_THROW(flush_folder(folder().path()));
  EXPECT_THROW(flush_folder(folder().path("none")), FileError);
}

TEST(FolderOfPath, IsWhatComesBeforeTheName) {
  EXPECT_EQ(folder_of_path("a.qin"), ".");
  EXPECT_EQ(folder_of_path("jobs/a.qin"), "jobs");
  EXPECT_EQ(folder_of_path("/jobs/old/a.qin"), "/jobs/old");
  EXPECT_EQ(folder_of_path("/a.qin"), "/");
}

}  // namespace
}  // namespace kelp::input::quill::lossless
