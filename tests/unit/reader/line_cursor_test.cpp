#include "reader/line_cursor.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <ostream>
#include <string>
#include <tuple>
#include <vector>

#include "support/comparison.hpp"
#include "support/printing.hpp"

namespace kelp::input::quill {
namespace {

using namespace std::string_literals;

/// What a cursor shows at one stop: the line, the trimmed line, its number and how many remain.
using Stop = std::tuple<std::string, std::string, std::uint64_t, std::size_t>;

struct Row {
  std::string name;
  std::string text;
  std::vector<Stop> stops;
};

void PrintTo(const Row& row, std::ostream* out) { *out << testing::PrintToString(row.text); }

std::vector<Stop> walk(LineCursor& cursor) {
  std::vector<Stop> stops;
  for (; !cursor.at_end(); cursor.take(LineRole::Command))
    stops.emplace_back(cursor.line(), cursor.trimmed(), cursor.number(), cursor.remaining());
  return stops;
}

class LineCursorOver : public testing::TestWithParam<Row> {};

TEST_P(LineCursorOver, StopsAtTheLinesThatAreNotBlank) {
  LineCursor cursor(GetParam().text);
  EXPECT_EQ(walk(cursor), GetParam().stops);
  EXPECT_TRUE(cursor.at_end());
  EXPECT_EQ(cursor.remaining(), 0U);
}

const Row rows[] = {
    {"NoText", "", {}},
    {"OneLineEnd", "\n", {}},
    {"BlankLinesOnly", "\n \t\n\v\f\r\n  ", {}},
    {"OneLine", "a", {{"a", "a", 1, 1}}},
    {"OneLineWithItsEnd", "a\n", {{"a", "a", 1, 1}}},
    {"TwoLines", "a\nb", {{"a", "a", 1, 2}, {"b", "b", 2, 1}}},
    {"BlanksOnOneSideOnly",
     " a\na \n1\t\n\t1",
     {{" a", "a", 1, 4}, {"a ", "a", 2, 3}, {"1\t", "1", 3, 2}, {"\t1", "1", 4, 1}}},
    {"InnerBlanksStay", "C 1\n C 1 ", {{"C 1", "C 1", 1, 2}, {" C 1 ", "C 1", 2, 1}}},
    {"BlankLinesAreCounted", "\n\n a \n\n\t\nb\n\n", {{" a ", "a", 3, 5}, {"b", "b", 6, 2}}},
    {"LineEndsOfTwoBytes", "a\r\n\r\nb\r\n", {{"a", "a", 1, 3}, {"b", "b", 3, 1}}},
    {"ACarriageReturnAloneIsABlank", "\ra\rb\r", {{"\ra\rb\r", "a\rb", 1, 1}}},
    {"ACarriageReturnAloneEndsNoLine", "\r\r\n\rb", {{"\rb", "b", 2, 1}}},
    {"ANulByteIsNoBlank", "\0\n\n\0\n"s, {{"\0"s, "\0"s, 1, 3}, {"\0"s, "\0"s, 3, 1}}},
    {"ANoBreakSpaceIsNoBlank", "\xC2\xA0\n", {{"\xC2\xA0", "\xC2\xA0", 1, 1}}},
};
INSTANTIATE_TEST_SUITE_P(Table, LineCursorOver, testing::ValuesIn(rows),
                         [](const auto& row) { return row.param.name; });

TEST(ALineCursor, NotesWhatTheLinesThatItTakesAre) {
  LineCursor cursor("#a\n\nB 1 x\nb");
  std::vector<LineRecord> records(cursor.all_lines().size());
  cursor.keep(records);
  cursor.take(LineRole::Command, 7);
  cursor.take(LineRole::Dropped);
  std::vector<LineRecord> expected(4);
  expected[0].role = LineRole::Command;
  expected[0].index = 7;
  expected[2].role = LineRole::Dropped;
  EXPECT_EQ(records, expected);
}

}  // namespace
}  // namespace kelp::input::quill
