#include "quill-inp/findings/project_choices.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "quill-inp/process/trouble.hpp"
#include "support/temporary_folder.hpp"

namespace kelp::input::quill::tool {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(ProjectChoices, AreThoseOfTheFile) {
  const ProjectChoices choices = parse_project_choices(
      "# ours\nignore = [\"chemistry\", \"QL109\"]\nfail-on = \"error\"\n"
      "known-commands = [\"solvent\", \"grid\"]\nmax-change = 1e-5\n",
      "f");
  EXPECT_THAT(choices.ignored, ElementsAre("chemistry", "QL109"));
  EXPECT_EQ(choices.fail_on, FailOn(lint::Severity::Error));
  EXPECT_THAT(choices.known_commands, ElementsAre("solvent", "grid"));
  EXPECT_EQ(choices.max_change, 1e-5);
}

TEST(ProjectChoices, AreEmptyForAnEmptyFile) {
  const ProjectChoices choices = parse_project_choices("", "f");
  EXPECT_THAT(choices.ignored, IsEmpty());
  EXPECT_EQ(choices.fail_on, std::nullopt);
  EXPECT_THAT(choices.known_commands, IsEmpty());
  EXPECT_EQ(choices.max_change, std::nullopt);
}

TEST(ProjectChoices, CanBeNeverToFailAndAWholeNumber) {
  const ProjectChoices choices = parse_project_choices("fail-on = 'never'\nmax-change = 0\n", "f");
  EXPECT_EQ(choices.fail_on, std::optional<FailOn>(FailOn()));
  EXPECT_EQ(choices.max_change, 0.0);
}

struct Row {
  std::string_view name;
  std::string text;
  std::string message;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }

const Row rows[] = {
    {"AnUnknownKey", "\nignroe = []\n", "f:2: unknown key 'ignroe'; did you mean 'ignore'?"},
    {"AnUnknownKeyLikeNoOther", "colour = 1\n", "f:1: unknown key 'colour'"},
    {"AnUnknownTable", "[lint]\nignore = []\n", "f:1: unknown key 'lint'"},
    {"ANameThatIsNone", "ignore = [\"QL999\"]\n", "f:1: 'QL999' is neither a code nor a group"},
    {"ATextForAList", "ignore = \"QL109\"\n", "f:1: 'ignore' takes a list of texts"},
    {"ANumberInAList", "known-commands = [\n\"a\",\n1]\n",
     "f:3: 'known-commands' takes a list of texts"},
    {"ASeverityThatIsNone", "fail-on = \"fatal\"\n",
     "f:1: 'fail-on' takes error, warning, info or never"},
    {"ASeverityThatIsNoText", "fail-on = 1\n",
     "f:1: 'fail-on' takes error, warning, info or never"},
    {"ANegativeChange", "max-change = -1e-6\n",
     "f:1: 'max-change' takes a number that is 0 or larger"},
    {"AChangeThatIsNoNumber", "max-change = \"1\"\n",
     "f:1: 'max-change' takes a number that is 0 or larger"},
};

class WrongChoices : public testing::TestWithParam<Row> {};

TEST_P(WrongChoices, AreRefusedWithTheirLine) {
  try {
    parse_project_choices(GetParam().text, "f");
    FAIL();
  } catch (const Trouble& trouble) {
    const std::string message = trouble.what();
    EXPECT_EQ(message.substr(0, GetParam().message.size()), GetParam().message);
  }
}

INSTANTIATE_TEST_SUITE_P(Table, WrongChoices, testing::ValuesIn(rows),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(WrongChoices, ThatAreNotTomlAreRefusedWithTheirLine) {
  EXPECT_THROW(parse_project_choices("ignore = [\n", "f"), Trouble);
}

TEST(ProjectFinder, TakesTheNearestFileUpwards) {
  const TemporaryFolder folder;
  std::filesystem::create_directories(folder.path("a/b"));
  folder.write(".quill-inp.toml", "known-commands = ['outer']\n");
  folder.write("a/.quill-inp.toml", "known-commands = ['inner']\n");
  ProjectFinder finder;
  EXPECT_THAT(finder.choices_for(folder.path("a/b/job.qin")).known_commands, ElementsAre("inner"));
  EXPECT_THAT(finder.choices_for(folder.path("a/job.qin")).known_commands, ElementsAre("inner"));
  EXPECT_THAT(finder.choices_for(folder.path("job.qin")).known_commands, ElementsAre("outer"));
}

TEST(ProjectFinder, LooksUpwardsFromTheFolderThatAPathLeadsTo) {
  const TemporaryFolder folder;
  std::filesystem::create_directories(folder.path("below"));
  std::filesystem::create_directory_symlink(folder.path("below"), folder.path("link"));
  folder.write(".quill-inp.toml", "known-commands = ['outer']\n");
  folder.write("below/.quill-inp.toml", "known-commands = ['inner']\n");
  ProjectFinder finder;
  EXPECT_THAT(finder.choices_for(folder.path("below/../job.qin")).known_commands,
              ElementsAre("outer"));
  EXPECT_THAT(finder.choices_for(folder.path("link/job.qin")).known_commands, ElementsAre("inner"));
}

TEST(ProjectFinder, LooksOnceForAFolder) {
  const TemporaryFolder folder;
  const std::string file = folder.write(".quill-inp.toml", "known-commands = ['grid']\n");
  ProjectFinder finder;
  const ProjectChoices& choices = finder.choices_for(folder.path("a.qin"));
  std::filesystem::remove(file);
  EXPECT_EQ(&finder.choices_for(folder.path("b.qin")), &choices);
  EXPECT_THAT(choices.known_commands, ElementsAre("grid"));
}

TEST(ProjectFinder, TakesStandardInputForAFileOfTheCurrentFolder) {
  ProjectFinder finder;
  EXPECT_EQ(&finder.choices_for("-"), &finder.choices_for("job.qin"));
}

TEST(ProjectFinder, RefusesAPipeInPlaceOfTheFile) {
  const TemporaryFolder folder;
  ASSERT_EQ(mkfifo(folder.path(".quill-inp.toml").c_str(), 0600), 0);
  EXPECT_THROW(ProjectFinder().choices_for(folder.path("job.qin")), Trouble);
}

TEST(ProjectFinder, RefusesAFolderInPlaceOfTheFile) {
  const TemporaryFolder folder;
  std::filesystem::create_directories(folder.path(".quill-inp.toml"));
  EXPECT_THROW(ProjectFinder().choices_for(folder.path("job.qin")), Trouble);
}

}  // namespace
}  // namespace kelp::input::quill::tool
