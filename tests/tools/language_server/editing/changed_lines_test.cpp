#include "language_server/editing/changed_lines.hpp"

#include <gtest/gtest.h>

#include <string>

#include "lint/line_repair.hpp"

namespace kelp::input::quill::language_server {

namespace {

struct Row {
  std::string old_text;
  std::string new_text;
  std::string edits;  // offset+length=text of each
};

TEST(ChangedLines, AreWholeLinesAndOnlyThoseThatDiffer) {
  const Row rows[] = {{"", "", ""},
                      {"a\nb\n", "a\nb\n", ""},
                      {"a\nb\nc\n", "a\nx\nc\n", "2+2=x\n;"},
                      {"a\nb\nc\n", "a\nc\n", "2+2=;"},
                      {"a\nc\n", "a\nb\nc\n", "2+0=b\n;"},
                      {"a\n", "a\nb\n", "2+0=b\n;"},
                      {"a", "a\n", "0+1=a\n;"},
                      {"", "a\n", "0+0=a\n;"},
                      {"a\n", "", "0+2=;"},
                      {"a\nb\nc\n", "x\nb\ny\n", "0+2=x\n;4+2=y\n;"}};
  for (const Row& row : rows) {
    std::string shown;
    const auto edits = changed_lines(row.old_text, row.new_text);
    for (const lint::ByteEdit& edit : edits)
      shown += std::to_string(edit.range.offset) + "+" + std::to_string(edit.range.length) + "=" +
               edit.replacement + ";";
    EXPECT_EQ(shown, row.edits) << row.old_text;
    EXPECT_EQ(lint::with_edits(row.old_text, edits), row.new_text);
  }
}

}  // namespace

}  // namespace kelp::input::quill::language_server
