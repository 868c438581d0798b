#include "quill-inp/text/unified_diff.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "quill-inp/text/line_matching.hpp"

namespace kelp::input::quill::tool {
namespace {

struct Row {
  std::string_view name;
  std::string_view old_text;
  std::string_view new_text;
  std::string_view diff;  // after the two lines with the name
};

class UnifiedDiff : public testing::TestWithParam<Row> {};

const Row rows[] = {
    {"OneLineChanged", "a\nb\nc\n", "a\nB\nc\n", "@@ -1,3 +1,3 @@\n a\n-b\n+B\n c\n"},
    {"OneLineOfOne", "a\n", "b\n", "@@ -1 +1 @@\n-a\n+b\n"},
    {"AddedToNothing", "", "a\nb\n", "@@ -0,0 +1,2 @@\n+a\n+b\n"},
    {"NothingIsLeft", "a\nb\n", "", "@@ -1,2 +0,0 @@\n-a\n-b\n"},
    {"AddedInTheMiddle", "a\nc\n", "a\nb\nc\n", "@@ -1,2 +1,3 @@\n a\n+b\n c\n"},
    {"RemovedAtTheEnd", "a\nb\n", "a\n", "@@ -1,2 +1 @@\n a\n-b\n"},
    {"NoLineEndAnyMore", "a\n", "a", "@@ -1 +1 @@\n-a\n+a\n\\ No newline at end of file\n"},
    {"NoLineEndBefore", "a", "a\n", "@@ -1 +1 @@\n-a\n\\ No newline at end of file\n+a\n"},
    {"NoLineEndInTheContext", "a\nb", "A\nb",
     "@@ -1,2 +1,2 @@\n-a\n+A\n b\n\\ No newline at end of file\n"},
    {"LineEndsCount", "a\r\n", "a\n", "@@ -1 +1 @@\n-a\r\n+a\n"},
    {"ThreeLinesOfContext", "1\n2\n3\n4\nx\n6\n7\n8\n9\n", "1\n2\n3\n4\ny\n6\n7\n8\n9\n",
     "@@ -2,7 +2,7 @@\n 2\n 3\n 4\n-x\n+y\n 6\n 7\n 8\n"},
    {"SixLinesBetweenShareAHunk", "x\n1\n2\n3\n4\n5\n6\nx\n", "y\n1\n2\n3\n4\n5\n6\ny\n",
     "@@ -1,8 +1,8 @@\n-x\n+y\n 1\n 2\n 3\n 4\n 5\n 6\n-x\n+y\n"},
    {"SevenLinesBetweenDoNot", "x\n1\n2\n3\n4\n5\n6\n7\nx\n", "y\n1\n2\n3\n4\n5\n6\n7\ny\n",
     "@@ -1,4 +1,4 @@\n-x\n+y\n 1\n 2\n 3\n@@ -6,4 +6,4 @@\n 5\n 6\n 7\n-x\n+y\n"},
};

TEST_P(UnifiedDiff, TellsWhatChanged) {
  EXPECT_EQ(unified_diff("f", GetParam().old_text, GetParam().new_text),
            "--- f\n+++ f\n" + std::string(GetParam().diff));
}

INSTANTIATE_TEST_SUITE_P(Table, UnifiedDiff, testing::ValuesIn(rows),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(UnifiedDiff, OfEqualTextsIsEmpty) {
  EXPECT_EQ(unified_diff("f", "", ""), "");
  EXPECT_EQ(unified_diff("f", "a\nb", "a\nb"), "");
}

TEST(UnifiedDiff, HasNamesThatATerminalAndPatchCanTake) {
  EXPECT_EQ(unified_diff("a\x1B\n", "", "x\n"),
            "--- a\\x1b\\n\n+++ a\\x1b\\n\n@@ -0,0 +1 @@\n+x\n");
  EXPECT_EQ(unified_diff("my file", "", "x\n"),
            "--- my file\t\n+++ my file\t\n@@ -0,0 +1 @@\n+x\n");
}

TEST(ColoredDiff, ColoursWholeLines) {
  EXPECT_EQ(
      colored_diff("--- f\n+++ f\n@@ -1,2 +1,2 @@\n a\n-b\n+c\n\\ No newline at end of file\n"),
      "\x1B[31m--- f\x1B[m\n\x1B[32m+++ f\x1B[m\n\x1B[36m@@ -1,2 +1,2 @@\x1B[m\n a\n"
      "\x1B[31m-b\x1B[m\n\x1B[32m+c\x1B[m\n\\ No newline at end of file\n");
}

struct ShownRow {
  std::string_view name;
  std::string_view diff;
  std::string_view shown;
};

class ShownDiff : public testing::TestWithParam<ShownRow> {};

const ShownRow shown_rows[] = {
    {"NoLines", "", ""},
    {"ALineEndThatChanges", "--- f\n+++ f\n@@ -1 +1 @@\n-a\r\n+a\n",
     "--- f\n+++ f\n@@ -1 +1 @@\n-a\\r\n+a\n"},
    {"ALineEndThatIsNew", "-a\n+a\r\n", "-a\n+a\\r\n"},
    {"ALineWithTheSameEnd", " a\r\n-b\r\n+c\r\n a\r\n", " a\r\n-b\r\n+c\r\n a\r\n"},
    {"ChangesThatLinesPart", "-a\n+b\n a\n-a\r\n+b\r\n", "-a\n+b\n a\n-a\r\n+b\r\n"},
    {"OnlyTheChangeWithTwoKindsOfEnds", "-a\r\n+b\r\n a\n-a\r\n+b\n",
     "-a\r\n+b\r\n a\n-a\\r\n+b\n"},
    {"ContextHasItsOwnEnds", " a\r\n-b\n+c\n", " a\r\n-b\n+c\n"},
    {"ALastLineWithoutAnEnd", "-a\r\n+a\n\\ No newline at end of file\n",
     "-a\\r\n+a\n\\ No newline at end of file\n"},
    {"TheWordsAboutTheEndAreNoLine", "-a\r\n\\ No newline at end of file\n+b\r\n",
     "-a\r\n\\ No newline at end of file\n+b\r\n"},
    {"WhatATerminalWouldObey", "-a\x1B\r\n+a\rb\n", "-a\\x1b\\r\n+a\\rb\n"},
    {"AnEmptyLine", "-\r\n+\n", "-\\r\n+\n"},
};

TEST_P(ShownDiff, ShowsLineEndsThatChange) {
  EXPECT_EQ(shown_diff(GetParam().diff), GetParam().shown);
}

INSTANTIATE_TEST_SUITE_P(Table, ShownDiff, testing::ValuesIn(shown_rows),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(LineEnds, AreAllThatDiffers) {
  EXPECT_TRUE(differ_only_in_line_ends("a\r\nb\r\n", "a\nb\n"));
  EXPECT_TRUE(differ_only_in_line_ends("a\nb\r\n", "a\r\nb\n"));
  EXPECT_FALSE(differ_only_in_line_ends("a\r\n", "a\r\n"));
  EXPECT_FALSE(differ_only_in_line_ends("a\r\nb", "a\nc"));
  EXPECT_FALSE(differ_only_in_line_ends("a\r\n", "a"));
  EXPECT_FALSE(differ_only_in_line_ends("a\rb\n", "a\nb\n"));
  EXPECT_FALSE(differ_only_in_line_ends("a\r", "a\n"));
}

using Lines = std::vector<std::string_view>;

/// The length of the longest common subsequence, by the plain quadratic recurrence.
std::size_t most_lines_that_can_stay(const Lines& left, const Lines& right) {
  std::vector<std::vector<std::size_t>> table(left.size() + 1,
                                              std::vector<std::size_t>(right.size() + 1));
  for (std::size_t i = 1; i <= left.size(); ++i) {
    for (std::size_t j = 1; j <= right.size(); ++j) {
      table[i][j] = left[i - 1] == right[j - 1] ? table[i - 1][j - 1] + 1
                                                : std::max(table[i - 1][j], table[i][j - 1]);
    }
  }
  return table[left.size()][right.size()];
}

/// Checks that the runs are in order, equal in both texts and end at the ends; returns their
/// length.
std::size_t checked_length(const std::vector<MatchingRun>& runs, const Lines& left,
                           const Lines& right) {
  std::size_t length = 0;
  std::size_t old_at = 0;
  std::size_t new_at = 0;
  for (const MatchingRun& run : runs) {
    EXPECT_GE(run.old_begin, old_at);
    EXPECT_GE(run.new_begin, new_at);
    EXPECT_LE(run.old_begin + run.length, left.size());
    EXPECT_LE(run.new_begin + run.length, right.size());
    for (std::size_t i = 0; i < run.length; ++i)
      EXPECT_EQ(left[run.old_begin + i], right[run.new_begin + i]);
    old_at = run.old_begin + run.length;
    new_at = run.new_begin + run.length;
    length += run.length;
  }
  EXPECT_EQ(old_at, left.size());
  EXPECT_EQ(new_at, right.size());
  EXPECT_EQ(runs.back().length, 0U);
  return length;
}

TEST(MatchingLines, AreAsManyAsPossible) {
  std::mt19937 random(20260101);
  const Lines alphabet = {"a", "b", "c", "d"};
  const auto random_lines = [&] {
    Lines lines(random() % 14);
    for (std::string_view& line : lines) line = alphabet[random() % alphabet.size()];
    return lines;
  };
  for (int i = 0; i < 3000; ++i) {
    const Lines left = random_lines();
    const Lines right = random_lines();
    EXPECT_EQ(checked_length(match_lines(left, right), left, right),
              most_lines_that_can_stay(left, right));
  }
}

TEST(MatchingLines, OfTextsThatShareNearlyNothingAreAtLeastTheirEnds) {
  std::vector<std::string> old_texts;
  std::vector<std::string> new_texts;
  for (int i = 0; i < 1500; ++i) {
    old_texts.push_back("old " + std::to_string(i));
    new_texts.push_back("new " + std::to_string(i));
  }
  Lines left = {"first"};
  Lines right = {"first"};
  left.insert(left.end(), old_texts.begin(), old_texts.end());
  right.insert(right.end(), new_texts.begin(), new_texts.end());
  left.push_back("last");
  right.push_back("last");
  EXPECT_EQ(checked_length(match_lines(left, right), left, right), 2U);
}

Lines split(std::string_view text) {
  Lines lines;
  while (!text.empty()) {
    const std::size_t length = std::min(text.size(), text.find('\n') + 1);
    lines.push_back(text.substr(0, length == 0 ? text.size() : length));
    text.remove_prefix(lines.back().size());
  }
  return lines;
}

/// Positions are counted from 0 here, and are before the first line of a hunk.
struct Hunk {
  std::size_t old_begin = 0;
  std::size_t old_count = 1;
  std::size_t new_begin = 0;
  std::size_t new_count = 1;
};

/// Reads "begin" or "begin,count", where lines are counted from 1 unless there are none.
void parse_range(std::string_view& text, std::size_t& begin, std::size_t& count) {
  const auto number = [&] {
    std::size_t value = 0;
    const char* const end = std::from_chars(text.data(), text.data() + text.size(), value).ptr;
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return value;
  };
  begin = number();
  if (!text.empty() && text.front() == ',') {
    text.remove_prefix(1);
    count = number();
    EXPECT_NE(count, 1U);
  }
  if (count != 0) --begin;
}

Hunk parse_hunk_header(std::string_view line) {
  Hunk hunk;
  EXPECT_EQ(line.substr(0, 4), "@@ -");
  line.remove_prefix(4);
  parse_range(line, hunk.old_begin, hunk.old_count);
  EXPECT_EQ(line.substr(0, 2), " +");
  line.remove_prefix(2);
  parse_range(line, hunk.new_begin, hunk.new_count);
  EXPECT_EQ(line, " @@\n");
  return hunk;
}

/// Applies a difference to the old text as `patch` does, strictly: every number must be right.
std::string patched(const std::string& old_text, const std::string& diff) {
  const Lines old_lines = split(old_text);
  const Lines lines = split(diff);
  std::string text;
  std::size_t old_at = 0;
  std::size_t new_at = 0;
  for (std::size_t i = 2; i < lines.size();) {
    Hunk hunk = parse_hunk_header(lines[i++]);
    for (; old_at < hunk.old_begin; ++old_at, ++new_at) text += old_lines[old_at];
    EXPECT_EQ(new_at, hunk.new_begin);
    while (hunk.old_count > 0 || hunk.new_count > 0) {
      std::string line(lines[i].substr(1));
      const char sign = lines[i++].front();
      if (i < lines.size() && lines[i] == "\\ No newline at end of file\n") {
        line.pop_back();
        ++i;
      }
      if (sign != '+') {
        EXPECT_EQ(old_lines[old_at++], line);
        --hunk.old_count;
      }
      if (sign != '-') {
        text += line;
        ++new_at;
        --hunk.new_count;
      }
    }
  }
  for (; old_at < old_lines.size(); ++old_at) text += old_lines[old_at];
  return text;
}

TEST(UnifiedDiff, AppliedToTheOldTextGivesTheNewOne) {
  std::mt19937 random(20260102);
  const auto random_text = [&] {
    std::string text;
    for (std::size_t i = random() % 30; i > 0; --i)
      text += std::string(1, static_cast<char>('a' + random() % 3)) + "\n";
    if (!text.empty() && random() % 3 == 0) text.pop_back();
    return text;
  };
  for (int i = 0; i < 2000; ++i) {
    const std::string old_text = random_text();
    const std::string new_text = random_text();
    EXPECT_EQ(patched(old_text, unified_diff("f", old_text, new_text)), new_text);
  }
}

}  // namespace
}  // namespace kelp::input::quill::tool
