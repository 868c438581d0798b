#include "kelp/input/quill/lossless/file_replacement.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <thread>
#include <type_traits>
#include <utility>
#include <vector>

#include "kelp/input/quill/lossless/wording.hpp"
#include "support/temporary_folder.hpp"

namespace kelp::input::quill::lossless {
namespace {

using Kind = FileFailure::Kind;
using std::chrono::milliseconds;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;
using testing::UnorderedElementsAre;

static_assert(std::is_nothrow_move_constructible_v<FileToReplace>);
static_assert(std::is_nothrow_move_assignable_v<FileToReplace>);
static_assert(!std::is_copy_constructible_v<FileToReplace>);
static_assert(std::is_nothrow_copy_constructible_v<FileError>);

constexpr const char* old_text = "#opt\n\n0 1\nHe 0 0 0\n";
constexpr const char* new_text = "#opt(tight)\n\n0 1\nHe 0 0 0\n";
constexpr milliseconds a_moment(50);

const OpenOptions without_waiting{milliseconds(0)};

std::string content_of(const std::string& path) {
  std::ifstream file(path, std::ios_base::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::vector<std::string> names_in(const std::string& folder) {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(folder))
    names.push_back(entry.path().filename().string());
  return names;
}

/// Returns why a call fails, with its path. The call must fail.
template <typename Call>
FileError error_of(const Call& call) {
  try {
    call();
  } catch (const FileError& error) {
    return error;
  }
  ADD_FAILURE() << "nothing failed";
  return FileError("", {});
}

class Replacement : public testing::Test {
 protected:
  std::string path(const std::string& name = "a.qin") const { return folder_.path(name); }
  std::vector<std::string> names() const { return names_in(folder_.path()); }
  const TemporaryFolder& folder() const { return folder_; }

 private:
  TemporaryFolder folder_;
  std::string path_ = folder_.write("a.qin", old_text);
};

TEST_F(Replacement, GivesAFileItsNewText) {
  FileToReplace file = open_to_replace(path());
  EXPECT_EQ(file.path(), path());
  EXPECT_EQ(file.text(), old_text);
  EXPECT_THAT(file.replace(new_text), IsEmpty());
  EXPECT_EQ(content_of(path()), new_text);
  EXPECT_THAT(names(), ElementsAre("a.qin"));
}

TEST_F(Replacement, OfATextThatWasTakenIsTheSame) {
  FileToReplace file = open_to_replace(path());
  EXPECT_EQ(file.take_text(), old_text);
  EXPECT_EQ(file.text(), "");
  file.replace(new_text, {".bak"});
  EXPECT_EQ(content_of(path()), new_text);
  EXPECT_EQ(content_of(path("a.qin.bak")), old_text);
}

TEST_F(Replacement, ByTheSameTextDoesNothing) {
  struct stat before {};
  ASSERT_EQ(stat(path().c_str(), &before), 0);
  for (const bool is_taken : {false, true}) {
    FileToReplace file = open_to_replace(path());
    if (is_taken) file.take_text();
    file.replace(old_text, {".bak"});
    struct stat after {};
    ASSERT_EQ(stat(path().c_str(), &after), 0);
    EXPECT_EQ(after.st_ino, before.st_ino);
    EXPECT_THAT(names(), ElementsAre("a.qin"));
  }
}

TEST_F(Replacement, KeepsThePermissionBits) {
  ASSERT_EQ(chmod(path().c_str(), 0640), 0);
  open_to_replace(path()).replace(new_text);
  struct stat state {};
  ASSERT_EQ(stat(path().c_str(), &state), 0);
  EXPECT_EQ(state.st_mode & 07777U, 0640U);
}

TEST_F(Replacement, ReplacesTheFileThatALinkLeadsTo) {
  ASSERT_EQ(symlink("a.qin", path("link").c_str()), 0);
  open_to_replace(path("link")).replace(new_text);
  EXPECT_TRUE(std::filesystem::is_symlink(path("link")));
  EXPECT_EQ(content_of(path()), new_text);
}

TEST_F(Replacement, WritesOverNoChangeOfOthers) {
  FileToReplace file = open_to_replace(path());
  folder().write("a.qin", "#other\n");
  const FileError error = error_of([&] { file.replace(new_text); });
  EXPECT_EQ(error.failure().kind, Kind::ChangedByOthers);
  EXPECT_EQ(error.path(), path());
  EXPECT_EQ(content_of(path()), "#other\n");
  EXPECT_THAT(names(), ElementsAre("a.qin"));
}

TEST_F(Replacement, IsDoneOnceForEachReading) {
  FileToReplace file = open_to_replace(path());
  file.replace(new_text);
  for (const char* text : {old_text, new_text, "#other\n"})
    EXPECT_EQ(error_of([&] { file.replace(text); }).failure().kind, Kind::AlreadyReplaced);
  EXPECT_EQ(content_of(path()), new_text);
}

TEST_F(Replacement, OfAFileWithSeveralNamesIsRefusedUnlessWanted) {
  ASSERT_EQ(link(path().c_str(), path("b.qin").c_str()), 0);
  FileToReplace file = open_to_replace(path());
  const FileFailure failure = error_of([&] { file.replace(new_text); }).failure();
  EXPECT_EQ(failure.kind, Kind::SeveralNames);
  EXPECT_EQ(failure.number, 2U);
  EXPECT_EQ(content_of(path()), old_text);
  ReplaceOptions options;
  options.breaks_hard_links = true;
  file.replace(new_text, options);
  EXPECT_EQ(content_of(path()), new_text);
  EXPECT_EQ(content_of(path("b.qin")), old_text);
}

TEST_F(Replacement, KeepsWhatHasTheNameOfTheBackup) {
  folder().write("a.qin.bak", "#older\n");
  FileToReplace file = open_to_replace(path());
  const FileFailure failure = error_of([&] { file.replace(new_text, {".bak"}); }).failure();
  EXPECT_EQ(failure.kind, Kind::BackupExists);
  EXPECT_EQ(failure.backup, "a.qin.bak");
  EXPECT_EQ(content_of(path()), old_text);
  EXPECT_EQ(content_of(path("a.qin.bak")), "#older\n");
  file.replace(new_text, {"~"});
  EXPECT_EQ(content_of(path("a.qin~")), old_text);
}

TEST_F(Replacement, CanBeMovedToAnotherObject) {
  FileToReplace file = open_to_replace(path());
  FileToReplace other = open_to_replace(folder().write("b.qin", "#b\n"));
  other = std::move(file);
  const FileToReplace unlocked = open_to_replace(path("b.qin"), without_waiting);
  other.replace(new_text);
  EXPECT_EQ(content_of(path()), new_text);
  EXPECT_EQ(content_of(path("b.qin")), "#b\n");
}

TEST_F(Replacement, IsRefusedForWhatIsNoFile) {
  ASSERT_EQ(mkfifo(path("pipe").c_str(), 0600), 0);
  ASSERT_EQ(symlink("nothing", path("link").c_str()), 0);
  const struct {
    std::string path;
    Kind kind;
    int system_code;
    FileType type;
  } rows[] = {
      {folder().path(), Kind::NotRegular, 0, FileType::Folder},
      {path("pipe"), Kind::NotRegular, 0, FileType::Pipe},
      {"/dev/null", Kind::NotRegular, 0, FileType::Device},
      {path("link"), Kind::DanglingLink, 0, {}},
      {path("none"), Kind::NotOpened, ENOENT, {}},
      {path("a.qin/b"), Kind::NotOpened, ENOTDIR, {}},
      {"", Kind::NotOpened, ENOENT, {}},
      {std::string("a\0b", 3), Kind::NulInName, 0, {}},
  };
  for (const auto& row : rows) {
    const FileError error = error_of([&] { open_to_replace(row.path); });
    EXPECT_EQ(error.failure().kind, row.kind) << row.path;
    EXPECT_EQ(error.failure().system_code, row.system_code) << row.path;
    EXPECT_EQ(error.failure().type, row.type) << row.path;
    EXPECT_EQ(error.path(), row.path);
    const std::string what = (row.path.empty() ? "" : row.path + ": ") + words(error.failure());
    EXPECT_STREQ(error.what(), what.c_str());
  }
}

TEST_F(Replacement, OfAFileThatIsTooLargeIsRefused) {
  const std::uint64_t size = std::string(old_text).size();
  EXPECT_EQ(open_to_replace(path(), {milliseconds(0), size}).text(), old_text);
  const FileFailure failure = error_of([&] {
                                open_to_replace(path(), {milliseconds(0), size - 1});
                              }).failure();
  EXPECT_EQ(failure.kind, Kind::TooLarge);
  EXPECT_EQ(failure.number, size - 1);
}

TEST_F(Replacement, WaitsForAnotherThread) {
  std::atomic<bool> is_open{false};
  auto first = std::make_unique<FileToReplace>(open_to_replace(path()));
  std::thread second([&] {
    const FileToReplace file = open_to_replace(path());
    is_open = true;
  });
  std::this_thread::sleep_for(a_moment);
  EXPECT_FALSE(is_open);
  first.reset();
  second.join();
  EXPECT_TRUE(is_open);
}

TEST_F(Replacement, WaitsUnderEveryNameOfTheFileAndOnlySoLong) {
  ASSERT_EQ(symlink("a.qin", path("link").c_str()), 0);
  ASSERT_EQ(link(path().c_str(), path("hard").c_str()), 0);
  const FileToReplace file = open_to_replace(path());
  for (const char* name : {"a.qin", "link", "hard"}) {
    const FileFailure failure =
        error_of([&] { open_to_replace(path(name), {milliseconds(5)}); }).failure();
    EXPECT_EQ(failure.kind, Kind::Locked) << name;
    EXPECT_EQ(failure.waited, milliseconds(5)) << name;
  }
}

TEST_F(Replacement, IsWaitedForByNobodyAfterwards) {
  for (int i = 0; i < 2; ++i) open_to_replace(path(), without_waiting);
}

/// Notes what it is told, with the names in the folder at that moment.
class Witness : public UnfinishedFiles {
 public:
  explicit Witness(std::string folder) : folder_(std::move(folder)) {}

  void begin_step() noexcept override { ++depth_; }
  void end_step() noexcept override { --depth_; }
  void add(UnfinishedFile& file) noexcept override {
    EXPECT_GT(depth_, 0);
    EXPECT_THAT(names_in(folder_), testing::Contains(file.name));
    added.push_back(file.name);
    now.push_back(file.name);
  }
  void remove(UnfinishedFile& file) noexcept override {
    EXPECT_GT(depth_, 0);
    now.erase(std::find(now.begin(), now.end(), file.name));
  }

  int depth() const { return depth_; }

  std::vector<std::string> added = {};
  std::vector<std::string> now = {};

 private:
  std::string folder_;
  int depth_ = 0;
};

TEST_F(Replacement, TellsOfItsTemporaryFiles) {
  Witness witness(folder().path());
  ReplaceOptions options{".bak"};
  options.unfinished = &witness;
  open_to_replace(path()).replace(new_text, options);
  EXPECT_THAT(witness.added, UnorderedElementsAre(StartsWith(".quill-inp."),
                                                  StartsWith(".quill-inp."), "a.qin.bak"));
  EXPECT_THAT(witness.now, IsEmpty());
  EXPECT_EQ(witness.depth(), 0);
  EXPECT_THAT(names(), UnorderedElementsAre("a.qin", "a.qin.bak"));
}

TEST_F(Replacement, TellsOfItsTemporaryFilesWhenItFails) {
  folder().write("a.qin.bak", "#older\n");
  Witness witness(folder().path());
  ReplaceOptions options{".bak"};
  options.unfinished = &witness;
  FileToReplace file = open_to_replace(path());
  EXPECT_THROW(file.replace(new_text, options), FileError);
  EXPECT_EQ(witness.added.size(), 2U);
  EXPECT_THAT(witness.now, IsEmpty());
  EXPECT_EQ(witness.depth(), 0);
  EXPECT_THAT(names(), UnorderedElementsAre("a.qin", "a.qin.bak"));
}

}  // namespace
}  // namespace kelp::input::quill::lossless
