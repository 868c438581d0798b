// The table of rules is data, and data is tested as such.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <regex>
#include <set>

#include "lint/pages.hpp"
#include "lint/rule.hpp"
#include "support/file_content.hpp"

namespace kelp::input::quill::lint {

namespace {

std::string after_last_slash(const std::string& path) { return path.substr(path.rfind('/') + 1); }

TEST(Rules, HaveCodesInOrderAndNoneTwice) {
  const std::regex code("QL[0-9]{3}");
  std::string_view last;
  for (const Rule& rule : all_rules()) {
    EXPECT_TRUE(std::regex_match(rule.code.begin(), rule.code.end(), code)) << rule.code;
    EXPECT_LT(last, rule.code);
    last = rule.code;
  }
}

TEST(Rules, HaveTheDigitOfTheirGroup) {
  const std::map<Group, char> digits = {{Group::File, '0'},       {Group::Geometry, '1'},
                                        {Group::Header, '2'},     {Group::PostProcessing, '3'},
                                        {Group::References, '4'}, {Group::Writing, '5'},
                                        {Group::Chemistry, '6'}};
  for (const Rule& rule : all_rules()) EXPECT_EQ(rule.code[2], digits.at(rule.group)) << rule.code;
}

TEST(Rules, HaveWordsWithoutAFullStop) {
  for (const Rule& rule : all_rules()) {
    for (const std::string_view words : {rule.title, rule.message, rule.advice}) {
      EXPECT_FALSE(words.empty()) << rule.code;
      EXPECT_NE(words.back(), '.') << rule.code;
      EXPECT_EQ(words.find('\n'), std::string_view::npos) << rule.code;
    }
  }
}

TEST(Rules, HaveAPageEachAndAFunctionEach) {
  std::set<void (*)(const Source&, Collector&)> checks;
  for (const Rule& rule : all_rules()) {
    EXPECT_NE(page_of(rule.code), "") << rule.code;
    EXPECT_TRUE(checks.insert(rule.check).second) << rule.code;
  }
}

TEST(Rules, HaveTheFilesOfTheFolderOfPages) {
  std::set<std::string> files;
  std::set<std::string> wanted;
  const std::string folder = std::string(KELP_QUILL_INP_SOURCE_DIR) + "/docs/lint";
  for (const auto& entry : std::filesystem::directory_iterator(folder))
    files.insert(after_last_slash(entry.path().string()));
  for (const Rule& rule : all_rules()) wanted.insert(std::string(rule.code) + ".md");
  EXPECT_EQ(files, wanted);
}

TEST(Rules, AreListedByThePageOfFindingsInTheirOrder) {
  std::string wanted;
  for (const Rule& rule : all_rules()) {
    const std::string code(rule.code);
    wanted += "| [" + code + "](lint/" + code + ".md) | " + std::string(name_of(rule.severity)) +
              " | `" + std::string(name_of(rule.group)) + "` | " + std::string(rule.title) + " |\n";
  }
  const std::string page =
      file_content(std::string(KELP_QUILL_INP_SOURCE_DIR) + "/docs/findings.md").value();
  const std::size_t begin = page.find("| [QL");
  EXPECT_EQ(page.substr(begin, page.find("\n\n", begin) + 1 - begin), wanted);
}

TEST(Rules, AreNamedByTheChangelogSinceTheirVersion) {
  const std::string changelog =
      file_content(std::string(KELP_QUILL_INP_SOURCE_DIR) + "/CHANGELOG.md").value();
  for (const Rule& rule : all_rules()) {
    EXPECT_EQ(rule.since, "0.1.0") << rule.code;
    const std::string range = "QL" + std::string(1, rule.code[2]) + "xx";
    EXPECT_THAT(changelog, testing::AnyOf(testing::HasSubstr(std::string(rule.code)),
                                          testing::HasSubstr(range)));
  }
}

TEST(Rules, AreFoundByTheirCodeInAnyLetterCase) {
  EXPECT_EQ(find_rule("QL104")->code, "QL104");
  EXPECT_EQ(find_rule("ql104")->code, "QL104");
  EXPECT_EQ(find_rule("QL10"), nullptr);
  EXPECT_EQ(find_rule(""), nullptr);
}

TEST(Rules, HaveNamesForTheirSeverityAndGroup) {
  EXPECT_EQ(name_of(Severity::Info), "info");
  EXPECT_EQ(name_of(Severity::Warning), "warning");
  EXPECT_EQ(name_of(Severity::Error), "error");
  std::vector<std::string_view> names;
  for (const Group group : all_groups()) names.push_back(name_of(group));
  EXPECT_THAT(names, testing::ElementsAre("file", "header", "geometry", "references",
                                          "post-processing", "writing", "chemistry"));
}

}  // namespace

}  // namespace kelp::input::quill::lint
