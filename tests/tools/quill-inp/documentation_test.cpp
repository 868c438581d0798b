// The examples of the tool's page and of its section in the README are carried out: blocks marked
// as "console" hold commands after "$ " (and "> " where one goes on) and what they print.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <sstream>
#include <string>
#include <vector>

#include "support/temporary_folder.hpp"
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

using Block = std::vector<Example>;

void add_line(Block& block, const std::string& line) {
  if (begins_with(line, "$ ")) {
    block.push_back({line.substr(2), ""});
  } else if (begins_with(line, "> ") && !block.empty() && block.back().output.empty()) {
    block.back().command += "\n" + line.substr(2);
  } else if (!block.empty()) {
    block.back().output += line + "\n";
  } else {
    ADD_FAILURE() << "output without a command: " << line;
  }
}

std::vector<Block> find_blocks(const std::string& page) {
  std::vector<Block> blocks;
  bool is_inside = false;
  std::istringstream lines(page);
  for (std::string line; std::getline(lines, line);) {
    if (is_inside && line == "```") {
      is_inside = false;
    } else if (is_inside) {
      add_line(blocks.back(), line);
    } else if (line == "```console") {
      is_inside = true;
      blocks.emplace_back();
    }
  }
  return blocks;
}

constexpr const char* mark = "=== end of an example ===\n";

/// All commands of a block run in one shell, so that "$?" is the exit code of the one before.
std::string to_script(const Block& block) {
  std::string script;
  for (const Example& example : block)
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
    const std::vector<std::string> outputs =
        split_at_marks(run_shell(folder.path(), to_script(block)).out);
    ASSERT_EQ(outputs.size(), block.size());
    for (std::size_t i = 0; i < block.size(); ++i)
      EXPECT_EQ(outputs[i], block[i].output) << "$ " << block[i].command;
  }
}

TEST(ToolDocumentation, ShowsWhatThePageSays) { expect_examples_to_hold(QUILL_INP_PAGE); }

TEST(ToolDocumentation, ShowsWhatTheReadmeSays) { expect_examples_to_hold(QUILL_INP_README); }

TEST(ToolDocumentation, ShowsWhatTheFirstStepsSay) {
  expect_examples_to_hold(QUILL_INP_FIRST_STEPS);
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
