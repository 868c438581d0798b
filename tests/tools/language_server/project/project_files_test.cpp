#include "language_server/project/project_files.hpp"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "support/temporary_folder.hpp"

namespace kelp::input::quill::language_server {

namespace {

namespace fs = std::filesystem;

using Names = std::vector<std::string>;

/// A folder with a file of choices, and a folder in it.
struct Project {
  TemporaryFolder folder = {};
  std::string job = folder.path("job.qin");
  std::string job_below = folder.path("below/job.qin");
  std::string file = folder.path(".quill-inp.toml");

  explicit Project(const std::string& choices) {
    fs::create_directory(folder.path("below"));
    folder.write(".quill-inp.toml", choices);
  }
};

TEST(ProjectFiles, CountForTheFolderAndThoseInIt) {
  const Project project("ignore = [\"QL113\"]\n");
  ProjectFiles files;
  const ProjectFiles::Reading first = files.reading_for(project.job);
  EXPECT_EQ(first.choices.ignored, Names{"QL113"});
  EXPECT_EQ(first.problem, "");
  EXPECT_EQ(files.reading_for(project.job_below).number, first.number);
}

TEST(ProjectFiles, AreNotReadAgainUntilTheyChange) {
  const Project project("ignore = [\"QL113\"]\n");
  ProjectFiles files;
  const std::uint64_t number = files.reading_for(project.job).number;
  EXPECT_NE(number, 0U);
  EXPECT_EQ(files.reading_for(project.job).number, number);
}

TEST(ProjectFiles, AreReadAgainWhenTheirTimeOrTheirSizeIsAnother) {
  const Project project("ignore = [\"QL113\"]\n");
  ProjectFiles files;
  const std::uint64_t first = files.reading_for(project.job).number;
  const auto time = fs::last_write_time(project.file);

  project.folder.write(".quill-inp.toml", "ignore = [\"QL112\"]\n");
  fs::last_write_time(project.file, time + std::chrono::seconds(1));
  const ProjectFiles::Reading second = files.reading_for(project.job);
  EXPECT_EQ(second.choices.ignored, Names{"QL112"});
  EXPECT_NE(second.number, first);

  project.folder.write(".quill-inp.toml", "ignore = [\"QL112\", \"QL114\"]\n");
  fs::last_write_time(project.file, time + std::chrono::seconds(1));
  const ProjectFiles::Reading third = files.reading_for(project.job);
  EXPECT_EQ(third.choices.ignored, (Names{"QL112", "QL114"}));
  EXPECT_NE(third.number, second.number);
  EXPECT_NE(third.number, first);
}

TEST(ProjectFiles, ThatCannotBeReadChooseNothingAndSayWhy) {
  const Project project("ignore = 1\n");
  ProjectFiles files;
  const ProjectFiles::Reading reading = files.reading_for(project.job);
  EXPECT_EQ(reading.choices.ignored, Names());
  const std::string place = fs::canonical(project.file).string() + ":1: ";
  EXPECT_EQ(reading.problem.substr(0, place.size()), place) << reading.problem;
  EXPECT_NE(reading.number, 0U);
  EXPECT_EQ(files.reading_for(project.job).number, reading.number);
}

TEST(ProjectFiles, AreToldApart) {
  const Project one("ignore = [\"QL113\"]\n");
  const Project other("ignore = [\"QL114\"]\n");
  ProjectFiles files;
  const std::uint64_t number = files.reading_for(one.job).number;
  const ProjectFiles::Reading second = files.reading_for(other.job);
  EXPECT_EQ(second.choices.ignored, Names{"QL114"});
  EXPECT_NE(second.number, number);
  EXPECT_EQ(files.reading_for(one.job).number, number);
}

TEST(ProjectFiles, ThatAreRemovedChooseNothingAndAreReadWhenTheyComeBack) {
  const Project project("ignore = [\"QL113\"]\n");
  ProjectFiles files;
  const std::uint64_t number = files.reading_for(project.job).number;
  fs::remove(project.file);
  const ProjectFiles::Reading none = files.reading_for(project.job);
  EXPECT_EQ(none.choices.ignored, Names());
  EXPECT_EQ(none.number, 0U);
  project.folder.write(".quill-inp.toml", "ignore = [\"QL114\", \"QL112\"]\n");
  const ProjectFiles::Reading again = files.reading_for(project.job);
  EXPECT_EQ(again.choices.ignored, (Names{"QL114", "QL112"}));
  EXPECT_NE(again.number, number);
}

}  // namespace

}  // namespace kelp::input::quill::language_server
