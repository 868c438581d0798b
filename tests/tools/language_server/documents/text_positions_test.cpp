#include "language_server/documents/text_positions.hpp"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace kelp::input::quill::language_server {

namespace {

constexpr auto utf8 = PositionEncoding::Utf8;
constexpr auto utf16 = PositionEncoding::Utf16;
constexpr auto utf32 = PositionEncoding::Utf32;

struct Row {
  std::string name;
  std::string text;
  PositionEncoding encoding;
  Position position;
  std::optional<std::size_t> offset;
  Position again;  // the position of that offset
};

class PositionIn : public testing::TestWithParam<Row> {};

TEST_P(PositionIn, IsAnOffset) {
  const Row& row = GetParam();
  const LineStarts lines(row.text);
  const auto offset = find_offset(row.position, row.text, lines, row.encoding);
  EXPECT_EQ(offset, row.offset);
  if (!offset) return;
  const Position again = position_at(*offset, row.text, lines, {row.text, row.encoding});
  EXPECT_EQ(again.line, row.again.line);
  EXPECT_EQ(again.character, row.again.character);
}

// "a", e with an acute accent (two bytes), a face (four bytes, two halves of a pair), "b".
const std::string mixed =
    "a\xC3\xA9\xF0\x9F\x98\x80"
    "b";

const Row rows[] = {
    {"TheBeginningOfNothing", "", utf16, {0, 0}, 0, {0, 0}},
    {"AfterTheEndOfNothing", "", utf16, {0, 9}, 0, {0, 0}},
    {"TheSecondLineOfNothing", "", utf16, {1, 0}, 0, {0, 0}},
    {"TheEndOfALine", "ab\ncd", utf16, {0, 2}, 2, {0, 2}},
    {"AfterTheEndOfALine", "ab\ncd", utf16, {0, 3}, 2, {0, 2}},
    {"FarAfterTheEndOfALine", "ab\ncd", utf16, {0, 2147483647}, 2, {0, 2}},
    {"AfterTheEndOfTheLastLine", "ab\ncd", utf16, {1, 3}, 5, {1, 2}},
    {"AfterTheLastLine", "ab\ncd", utf16, {2, 0}, 5, {1, 2}},
    {"TheEmptyLineAfterALineFeed", "ab\n", utf16, {1, 0}, 3, {1, 0}},
    {"AfterTheEmptyLine", "ab\n", utf16, {2, 5}, 3, {1, 0}},
    {"BeforeCarriageReturnAndLineFeed", "ab\r\ncd", utf16, {0, 9}, 2, {0, 2}},
    {"AfterCarriageReturnAndLineFeed", "ab\r\ncd", utf16, {1, 0}, 4, {1, 0}},
    {"AfterALoneCarriageReturn", "ab\rcd", utf16, {1, 1}, 4, {1, 1}},
    {"BeforeALoneCarriageReturn", "ab\rcd", utf16, {0, 9}, 2, {0, 2}},
    {"ACarriageReturnAtTheEnd", "ab\r", utf16, {1, 0}, 3, {1, 0}},
    {"TwoCarriageReturns", "\r\r\n", utf16, {2, 0}, 3, {2, 0}},
    {"BytesBeforeALongCharacter", mixed, utf8, {0, 3}, 3, {0, 3}},
    {"BytesAfterALongCharacter", mixed, utf8, {0, 7}, 7, {0, 7}},
    {"BytesWithinATwoByteCharacter", mixed, utf8, {0, 2}, std::nullopt, {}},
    {"BytesWithinAFourByteCharacter", mixed, utf8, {0, 6}, std::nullopt, {}},
    {"UnitsBeforeAPair", mixed, utf16, {0, 2}, 3, {0, 2}},
    {"UnitsWithinAPair", mixed, utf16, {0, 3}, std::nullopt, {}},
    {"UnitsAfterAPair", mixed, utf16, {0, 4}, 7, {0, 4}},
    {"UnitsAtTheEnd", mixed, utf16, {0, 5}, 8, {0, 5}},
    {"UnitsAfterTheEnd", mixed, utf16, {0, 6}, 8, {0, 5}},
    {"CodePointsBeforeAPair", mixed, utf32, {0, 2}, 3, {0, 2}},
    {"CodePointsAfterAPair", mixed, utf32, {0, 3}, 7, {0, 3}},
    {"AWholePairAtTheEndOfALine", "\xF0\x9F\x98\x80\nb", utf16, {0, 2}, 4, {0, 2}},
    {"HalfAPairAtTheEndOfALine", "\xF0\x9F\x98\x80\nb", utf16, {0, 1}, std::nullopt, {}},
    {"ThreeBytesAreOneUnit",
     "\xE2\x82\xAC"
     "b",
     utf16,
     {0, 1},
     3,
     {0, 1}},
    {"ANulByteIsACharacter", std::string("\0b", 2), utf16, {0, 1}, 1, {0, 1}},
};

INSTANTIATE_TEST_SUITE_P(Table, PositionIn, testing::ValuesIn(rows),
                         [](const auto& row) { return row.param.name; });

TEST(PositionAt, IsAfterACharacterForABytesWithinIt) {
  EXPECT_EQ(position_at(2, mixed, LineStarts(mixed), {mixed, utf16}), (Position{0, 2}));
  EXPECT_EQ(position_at(2, mixed, LineStarts(mixed), {mixed, utf32}), (Position{0, 2}));
}

TEST(PositionAt, IsTheEndOfTheLineWithinALineEnd) {
  EXPECT_EQ(position_at(2, "a\r\nb", LineStarts("a\r\nb"), {"a\r\nb", utf16}), (Position{0, 1}));
}

TEST(PositionEncoding, HasTheNamesOfTheProtocol) {
  EXPECT_EQ(name_of(utf8), "utf-8");
  EXPECT_EQ(name_of(utf16), "utf-16");
  EXPECT_EQ(name_of(utf32), "utf-32");
}

}  // namespace

}  // namespace kelp::input::quill::language_server
