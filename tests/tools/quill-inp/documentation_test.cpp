// The examples of the tool's page and of its section in the README are carried out: blocks marked
// as "console" hold commands after "$ " (and "> " where one goes on) and what they print. An input
// in a block before them is in the file input.qin.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <istream>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

#include "support/temporary_folder.hpp"
#include "tools/lint/escapes.hpp"
#include "tools/quill-inp/support/files.hpp"
#include "tools/quill-inp/support/program.hpp"

namespace kelp::input::quill::tool {
namespace {

bool begins_with(const std::string& line, const std::string& prefix) {
  return line.compare(0, prefix.size(), prefix) == 0;
}

struct Example {
  std::string command = {};
  std::string output = {};
};

struct Block {
  std::string input = {};  // of the block before it
  std::vector<Example> examples = {};
};

void add_line(std::vector<Example>& examples, const std::string& line) {
  if (begins_with(line, "$ ")) {
    examples.push_back({line.substr(2), ""});
  } else if (begins_with(line, "> ") && !examples.empty() && examples.back().output.empty()) {
    examples.back().command += "\n" + line.substr(2);
  } else if (!examples.empty()) {
    examples.back().output += line + "\n";
  } else {
    ADD_FAILURE() << "output without a command: " << line;
  }
}

/// The lines of a block, of which the first one has been read.
std::vector<std::string> lines_of_block(std::istream& lines) {
  std::vector<std::string> block;
  for (std::string line; std::getline(lines, line) && line != "```";) block.push_back(line);
  return block;
}

std::string joined(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\n";
  return text;
}

std::vector<Block> find_blocks(const std::string& page) {
  std::vector<Block> blocks;
  std::istringstream lines(page);
  std::string input;
  for (std::string line; std::getline(lines, line);) {
    if (line == "```qin") {
      input = joined(lines_of_block(lines));
    } else if (line == "```escaped") {
      input = lint::unescaped(joined(lines_of_block(lines)));
    } else if (line == "```console") {
      blocks.push_back({input});
      for (const std::string& part : lines_of_block(lines)) add_line(blocks.back().examples, part);
    } else if (begins_with(line, "```")) {
      lines_of_block(lines);
    }
  }
  return blocks;
}

constexpr const char* mark = "=== end of an example ===\n";

/// All commands of a block run in one shell, so that "$?" is the exit code of the one before.
std::string to_script(const Block& block) {
  std::string script;
  for (const Example& example : block.examples)
    script += example.command + "\nstatus=$?\nprintf '%s' '" + mark + "'\n(exit $status)\n";
  return script;
}

std::vector<std::string> split_at_marks(std::string text) {
  std::vector<std::string> pieces;
  for (std::size_t at = text.find(mark); at != std::string::npos; at = text.find(mark)) {
    pieces.push_back(text.substr(0, at));
    text.erase(0, at + std::string(mark).size());
  }
  return pieces;
}

void expect_examples_to_hold(const std::string& page) {
  const std::vector<Block> blocks = find_blocks(content_of(page));
  ASSERT_FALSE(blocks.empty());
  const TemporaryFolder folder;
  copy_example_inputs(folder.path());
  for (const Block& block : blocks) {
    if (!block.input.empty()) folder.write("input.qin", block.input);
    const std::vector<std::string> outputs =
        split_at_marks(run_shell(folder.path(), to_script(block)).out);
    ASSERT_EQ(outputs.size(), block.examples.size());
    for (std::size_t i = 0; i < outputs.size(); ++i)
      EXPECT_EQ(outputs[i], block.examples[i].output)
          << block.input << "$ " << block.examples[i].command;
  }
}

TEST(ToolDocumentation, ShowsWhatThePageSays) { expect_examples_to_hold(QUILL_INP_PAGE); }

TEST(ToolDocumentation, ShowsWhatTheReadmeSays) { expect_examples_to_hold(QUILL_INP_README); }

TEST(ToolDocumentation, ShowsWhatTheFirstStepsSay) {
  expect_examples_to_hold(QUILL_INP_FIRST_STEPS);
}

TEST(ToolDocumentation, ShowsWhatThePageOfTrapsSays) { expect_examples_to_hold(QUILL_INP_TRAPS); }

/// What a page says between a heading and the next one.
std::string section_of(const std::string& page, const std::string& heading) {
  const std::size_t begin = page.find("\n### " + heading + "\n");
  if (begin == std::string::npos) return "";
  return page.substr(begin, page.find("\n##", begin + 1) - begin);
}

TEST(ToolDocumentation, NamesTheFindingOfEveryTrap) {
  const std::string page = content_of(QUILL_INP_TRAPS);
  const std::regex row("\n\\| \\[([^\\]]+)\\]\\(#[^)]*\\) \\| \\[(QL[0-9]+)\\]");
  std::size_t count = 0;
  for (std::sregex_iterator match(page.begin(), page.end(), row), end; match != end; ++match) {
    ++count;
    EXPECT_NE(section_of(page, (*match)[1]).find("[" + (*match)[2].str() + "]\n"),
              std::string::npos)
        << (*match)[1];
  }
  EXPECT_EQ(count, find_blocks(page).size());
}

TEST(ToolDocumentation, NamesEveryVerbAndOption) {
  const std::string page = content_of(QUILL_INP_PAGE);
  const TemporaryFolder folder;
  for (const char* verb : {"show", "fmt", "get", "set", "unset", "add", "new", "sweep", "hash",
                           "diff", "json", "from-json"}) {
    EXPECT_NE(page.find(std::string("quill-inp ") + verb), std::string::npos) << verb;
    std::istringstream words(run_in(folder.path(), {verb, "--help"}).out);
    for (std::string word; words >> word;) {
      const std::size_t dashes = word.find("--");
      if (dashes == std::string::npos || word.size() == dashes + 2) continue;
      const std::size_t end = word.find_first_of("=[,;", dashes);
      const std::string option = word.substr(dashes, end == std::string::npos ? end : end - dashes);
      EXPECT_NE(page.find("`" + option), std::string::npos) << option << " of " << verb;
    }
  }
}

}  // namespace
}  // namespace kelp::input::quill::tool
