// Tests the pages about the format: every input on them gives the diagnostics and the canonical
// text that the page says, and the page has every diagnostic of the reader.

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "fenced_blocks.hpp"
#include "kelp/input/quill/quill.hpp"
#include "model/post_line_shapes.hpp"

namespace kelp::input::quill {
namespace {

/// An input on the page, and what the blocks after it say about it.
struct Claim {
  std::string heading;
  std::size_t line;
  std::string input;
  std::string diagnostics = {};  // one per line
  std::string written = {};
};

std::vector<Claim> find_claims(const std::string& page = "docs/format.md") {
  std::vector<Claim> claims;
  for (const FencedBlock& block : find_fenced_blocks(content_of_page(page))) {
    if (block.language == "qin") {
      claims.push_back({block.heading, block.line, block.text});
    } else if (block.language == "diagnostics") {
      claims.back().diagnostics = block.text;
    } else if (block.language == "written") {
      claims.back().written = block.text;
    }
  }
  return claims;
}

std::string joined(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\n";
  return text;
}

TEST(FormatPage, ForetellsTheDiagnosticsOfEveryInput) {
  const std::vector<Claim> claims = find_claims();
  ASSERT_FALSE(claims.empty());
  for (const Claim& claim : claims)
    EXPECT_EQ(joined(parse_string(claim.input).warnings), claim.diagnostics)
        << "docs/format.md:" << claim.line;
}

TEST(CheatSheet, HasTheInputOfTheFormatPage) {
  const std::vector<Claim> claims = find_claims("docs/cheat-sheet.md");
  ASSERT_EQ(claims.size(), 1U);
  EXPECT_EQ(claims.front().input, find_claims().front().input);
}

/// The lines in the first column of the table of the cheat sheet, without their back quotes.
std::vector<std::string> lines_of_cheat_sheet() {
  std::vector<std::string> lines;
  std::istringstream page(content_of_page("docs/cheat-sheet.md"));
  for (std::string row; std::getline(page, row);) {
    if (row.compare(0, 3, "| `") != 0) continue;
    const std::string cell = row.substr(0, row.find(" | "));
    const std::regex code("`([^`]+)`");
    for (std::sregex_iterator match(cell.begin(), cell.end(), code), end; match != end; ++match)
      lines.push_back((*match)[1]);
  }
  return lines;
}

TEST(CheatSheet, HasLinesThatAreReadAsItSays) {
  using Roles = std::vector<LineRole>;
  Roles roles;
  for (const std::string& line : lines_of_cheat_sheet()) {
    const bool is_post = line.find_first_of("CBADSP") == 0;
    const std::string before = is_post ? "XYZ water.xyz\n" : "";
    roles.push_back(parse_lines(before + line).lines.back().role);
  }
  EXPECT_EQ(roles, (Roles{LineRole::Command, LineRole::Command, LineRole::Command,
                          LineRole::ChargeAndMultiplicity, LineRole::Atom, LineRole::XyzReference,
                          LineRole::Trajectory, LineRole::PostCommand, LineRole::PostCommand,
                          LineRole::PostCommand, LineRole::PostCommand, LineRole::PostCommand,
                          LineRole::PostCommand}));
}

TEST(CheatSheet, NamesTheTasks) {
  for (const char* name : {"sp", "opt", "ts", "freq", "irc", "scan"}) {
    EXPECT_TRUE(parse_string(std::string("#") + name).input.has_task_command()) << name;
    EXPECT_THAT(content_of_page("docs/cheat-sheet.md"),
                testing::HasSubstr("`" + std::string(name) + "`"));
  }
}

TEST(FormatPage, ForetellsTheCanonicalText) {
  std::size_t count = 0;
  for (const Claim& claim : find_claims()) {
    if (claim.written.empty()) continue;
    ++count;
    EXPECT_EQ(parse_string(claim.input).input.to_string(), claim.written)
        << "docs/format.md:" << claim.line;
  }
  EXPECT_GT(count, 0U);
}

/// The texts in quotes that consist of several words, in all sources of the reader; such a text is
/// part of a message. Texts on two lines are joined.
std::set<std::string> messages_of_the_reader() {
  std::set<std::string> messages;
  const std::string folder = std::string(KELP_QUILL_INP_SOURCE_DIR) + "/src/reader";
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    std::string code = content_of_page("src/reader/" + entry.path().filename().string());
    code = std::regex_replace(code, std::regex("[ \t]*//[^\n]*"), "");
    const std::regex text("\"([^\"\\\\\n]+ [^\"\\\\\n]+)\"");
    for (std::sregex_iterator match(code.begin(), code.end(), text), end; match != end; ++match)
      messages.insert((*match)[1]);
  }
  return messages;
}

/// What a diagnostic says, without its line and without the piece of text that it quotes last.
std::string message_of(const std::string& diagnostic) {
  const std::string message = std::regex_replace(diagnostic, std::regex("^Line [0-9]+: "), "");
  return std::regex_replace(message, std::regex(" '[A-Za-z]+'$"), "");
}

/// The messages that have a section of their own, with an example that gives them and nothing else.
std::set<std::string> explained_messages() {
  std::set<std::string> messages;
  const std::vector<Claim> claims = find_claims();
  for (const Claim& claim : claims) {
    const std::string title = claim.heading.substr(claim.heading.find(' ') + 1);
    std::set<std::string> found;
    for (const std::string& warning : parse_string(claim.input).warnings)
      found.insert(message_of(warning));
    if (found == std::set<std::string>{title}) messages.insert(title);
  }
  return messages;
}

TEST(FormatPage, ExplainsEveryMessageOfTheReader) {
  std::set<std::string> expected;
  for (const std::string& message : messages_of_the_reader()) {
    const bool is_an_error = message.find("Failed") == 0;
    const std::string quoted_piece = " '";
    const std::size_t end = message.rfind(quoted_piece);
    const bool ends_in_a_piece = end != std::string::npos && end + 2 == message.size();
    if (!is_an_error) expected.insert(ends_in_a_piece ? message.substr(0, end) : message);
  }
  EXPECT_GE(expected.size(), 9U);
  EXPECT_EQ(explained_messages(), expected);
}

/// The properties of documents that do not read back, of which tests/properties/ shows that there
/// are no others.
std::vector<std::string> reasons_not_to_read_back() {
  const std::string code = content_of_page("tests/properties/expressible.cpp");
  const std::regex row("\\{\"([^\"]+)\",\\s+has_|\\{\"([^\"]+)\",\\s+breaks_");
  std::vector<std::string> reasons;
  for (std::sregex_iterator match(code.begin(), code.end(), row), end; match != end; ++match)
    reasons.push_back((*match)[1].str() + (*match)[2].str());
  return reasons;
}

TEST(FormatPage, ListsEveryReasonNotToReadBack) {
  const std::vector<std::string> reasons = reasons_not_to_read_back();
  EXPECT_EQ(reasons.size(), 16U);
  const std::string page = content_of_page("docs/format.md");
  for (const std::string& reason : reasons) EXPECT_THAT(page, testing::HasSubstr("- " + reason));
}

TEST(FormatPage, ShowsTheFormOfEveryPostProcessingLine) {
  const std::string page = content_of_page("docs/format.md");
  for (const PostLineShape& shape : post_line_shapes) {
    if (shape.keyword.empty()) continue;
    const std::string row =
        "| `" + std::string(shape.form) + "` | " + std::string(shape.noun) + " |";
    EXPECT_THAT(page, testing::HasSubstr(row));
  }
}

TEST(FormatPage, HasACureForEveryMessage) {
  const std::vector<Claim> claims = find_claims();
  for (const std::string& message : explained_messages()) {
    const auto is_cure = [&](const Claim& claim) {
      return claim.heading == "### " + message && claim.diagnostics.empty();
    };
    EXPECT_EQ(std::count_if(claims.begin(), claims.end(), is_cure), 1) << message;
  }
}

}  // namespace
}  // namespace kelp::input::quill
