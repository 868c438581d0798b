// The grammar on the page about the format and the reader agree on every line, in every place of an
// input.

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "fenced_blocks.hpp"
#include "grammar.hpp"
#include "kelp/core/text.hpp"
#include "kelp/input/quill/quill.hpp"

namespace kelp::input::quill {
namespace {

Grammar grammar_of_the_page() {
  const std::vector<FencedBlock> blocks = find_fenced_blocks(content_of_page("docs/format.md"));
  const auto block = std::find_if(blocks.begin(), blocks.end(),
                                  [](const FencedBlock& any) { return any.language == "abnf"; });
  return Grammar(block->text);
}

/// Lines without outer blanks: of the example inputs, of the inputs on the page, and each of them
/// with one word added, one removed, and one replaced.
std::set<std::string> lines_to_try() {
  std::set<std::string> texts = {
      "+1 -2\n2147483648 1\nXYZTRAJ\nXYZ\nPOST\n#\n##\n#a(b=c)\n#a=(b\n"};
  texts.insert("He .5 5. 1d-3\nHe inf -nan +Infinity\nHe 1e 1 1\nHe . 1 1\nS 1 2 nan 4\n");
  const std::filesystem::path root = KELP_QUILL_INP_SOURCE_DIR;
  for (const char* folder : {"examples/inputs", "fuzz/seeds"}) {
    for (const auto& entry : std::filesystem::directory_iterator(root / folder)) {
      if (entry.path().extension() == ".qin")
        texts.insert(content_of_page(std::filesystem::relative(entry.path(), root).string()));
    }
  }
  for (const FencedBlock& block : find_fenced_blocks(content_of_page("docs/format.md")))
    if (block.language == "qin") texts.insert(block.text);

  std::set<std::string> lines;
  for (const std::string& text : texts) {
    for (const std::string& whole : core::text::split_lines(text)) {
      const std::string line = core::text::trim(whole);
      if (line.empty()) continue;
      const std::size_t last = line.find_last_of(" \t");
      lines.insert({line, line + " 7", line + " x"});
      if (last != std::string::npos)
        lines.insert({core::text::trim(line.substr(0, last)), line.substr(0, last) + "\t1.5"});
    }
  }
  return lines;
}

/// The first of the rules that matches the whole line, or nothing.
class FirstRule {
 public:
  explicit FirstRule(const std::vector<std::string>& rules) {
    const Grammar grammar = grammar_of_the_page();
    for (const std::string& rule : rules)
      rules_.push_back({rule, std::regex(grammar.expression(rule), std::regex::icase)});
  }

  std::string operator()(const std::string& line) const {
    for (const auto& [name, expression] : rules_)
      if (std::regex_match(line, expression)) return name;
    return "";
  }

 private:
  std::vector<std::pair<std::string, std::regex>> rules_;
};

std::string header_form(const std::string& line) {
  const QuillInput input = parse_string(line + "\n0 1\n").input;
  if (input.commands.empty()) return "";
  switch (input.commands.front().kind) {
    case HeaderCommandKind::Flag:
      return "flag";
    case HeaderCommandKind::Assignment:
      return "assignment";
    case HeaderCommandKind::ParameterList:
      return "parameters";
  }
  return "";
}

std::string coordinate_form(const std::string& line) {
  const QuillInput input = parse_string("#sp\n0 1\n" + line).input;
  switch (input.geometry.kind) {
    case GeometryKind::None:
      return "";
    case GeometryKind::Atoms:
      return "atom-line";
    case GeometryKind::XyzFile:
      return "xyz-file";
    case GeometryKind::XyzTrajectory:
      return "trajectory";
  }
  return "";
}

std::string post_line_form(const std::string& line) {
  const QuillInput input = parse_string("XYZTRAJ a.xyz\n" + line).input;
  if (input.post_commands.empty()) return "dropped";
  switch (input.post_commands.front().kind) {
    case PostCommandKind::Raw:
      return "raw";
    case PostCommandKind::PostFile:
      return "post-file";
    case PostCommandKind::Scan:
      return "scan";
    default:
      return "constraint";
  }
}

bool begins_with_hash(const std::string& line) { return line.front() == '#'; }

TEST(Grammar, TellsTheFormsOfHeaderLines) {
  const FirstRule line_rule({"header-line"});
  const FirstRule form_rule({"flag", "assignment", "parameters"});
  for (const std::string& line : lines_to_try()) {
    EXPECT_EQ(line_rule(line) == "header-line", !parse_string(line).input.commands.empty()) << line;
    if (!begins_with_hash(line)) continue;
    EXPECT_EQ(form_rule(line.substr(1)), header_form(line)) << line;
  }
}

TEST(Grammar, TellsTheLineOfChargeAndMultiplicity) {
  const FirstRule rule({"charge-line"});
  for (const std::string& line : lines_to_try()) {
    if (line.find("2147483648") != std::string::npos) continue;  // a matter of size, not of form
    EXPECT_EQ(rule(line) == "charge-line",
              parse_string(line).input.geometry.has_charge_and_multiplicity)
        << line;
  }
}

TEST(Grammar, TellsTheFormsOfCoordinates) {
  const FirstRule rule({"trajectory", "xyz-file", "atom-line"});
  for (const std::string& line : lines_to_try()) {
    if (begins_with_hash(line)) continue;
    EXPECT_EQ(rule(line), coordinate_form(line)) << line;
  }
}

TEST(Grammar, TellsTheFormsOfPostProcessingLines) {
  const FirstRule rule({"constraint", "scan", "post-file", "dropped", "raw"});
  for (const std::string& line : lines_to_try())
    EXPECT_EQ(rule(line), post_line_form(line)) << line;
}

TEST(Grammar, IsTriedOnEveryForm) {
  const FirstRule form({"charge-line", "trajectory", "xyz-file", "atom-line"});
  const FirstRule post({"constraint", "scan", "post-file", "dropped", "raw"});
  std::set<std::string> found;
  for (const std::string& line : lines_to_try()) found.insert({form(line), post(line)});
  EXPECT_THAT(found,
              testing::UnorderedElementsAre("", "atom-line", "charge-line", "constraint", "dropped",
                                            "post-file", "raw", "scan", "trajectory", "xyz-file"));
}

}  // namespace
}  // namespace kelp::input::quill
