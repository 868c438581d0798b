// Whole texts: how they are split into lines, and to which sections the lines belong. Other files
// in this folder test how the lines of each section are read.

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "interface/expected.hpp"
#include "kelp/input/quill/quill.hpp"
#include "support/comparison.hpp"
#include "support/printing.hpp"

namespace kelp::input::quill {
namespace {

using namespace std::string_literals;

using Kind = PostCommandKind;

class Reading : public testing::TestWithParam<ReadingRow> {};

TEST_P(Reading, Gives) { EXPECT_EQ(parse_string(GetParam().text), GetParam().result); }

const AtomRecord oxygen{"O", 0.0, 0.0, 0.0};
const AtomRecord hydrogen{"H", 0.0, 0.0, 1.0};

const ReadingRow line_rows[] = {
    {"NoText", "", read_as({}, {no_section})},
    {"OneLineEnd", "\n", read_as({}, {no_section})},
    {"BlankLinesOnly", "\n \t\r\n\v\f\n\n  ", read_as({}, {no_section})},
    {"WithoutALastLineEnd", "#opt\n0 1\nO 0 0 0",
     read_as({{flag("opt")}, charged(0, 1, atoms({oxygen}))})},
    {"WithALastLineEnd", "#opt\n0 1\nO 0 0 0\n",
     read_as({{flag("opt")}, charged(0, 1, atoms({oxygen}))})},
    {"WithBlankLinesAtTheEnd", "#opt\n0 1\nO 0 0 0\n\n \n",
     read_as({{flag("opt")}, charged(0, 1, atoms({oxygen}))})},
    {"LineEndsOfTwoBytes", "#opt\r\n\r\n0 1\r\nO 0 0 0\r\n\r\nnote \r\n",
     read_as({{flag("opt")}, charged(0, 1, atoms({oxygen})), {raw("note")}})},
    {"LineEndsOfBothKinds", "#opt\n#freq\r\nO 0 0 0\nH 0 0 1\r\nnote",
     read_as({{flag("opt"), flag("freq")}, atoms({oxygen, hydrogen}), {raw("note")}})},
    {"ACarriageReturnAloneEndsNoLine", "#opt\r#freq\rO\n0 1",
     read_as({{flag("opt\r#freq\rO")}, charged(0, 1)})},
    {"ACarriageReturnTooManyIsABlank", "#opt\r\r\n0 1\r\r\n",
     read_as({{flag("opt")}, charged(0, 1)})},
    {"BlanksAroundEveryLine", "\t#opt \n  0 1\t\n \fO 0 0 0\v\n  C 1  \n",
     read_as({{flag("opt")},
              charged(0, 1, atoms({oxygen})),
              {constraint(Kind::AtomConstraint, {1}, "C 1")}})},
    {"LinesAreNeverJoined", "#opt(a,\nb)\n0 1\\\nO 0 0 0",
     read_as({{list("opt", {{"a"}})}, {}, {raw("b)"), raw("0 1\\"), raw("O 0 0 0")}},
             {"Line 1: missing ')' in QUILL header command", no_section})},
    {"QuotesDoNotSpanLines", "#opt(a='1,\n#b=2')\n0 1",
     read_as({{list("opt", {{"a", "'1,"}}), assignment("b", "2')")}, charged(0, 1)},
             {"Line 1: missing ')' in QUILL header command"})},
    {"ThereIsNoCommentSyntax", "#opt ! quick\n0 1\nO 0 0 0 # oxygen\n! done\n",
     read_as({{flag("opt ! quick")}, charged(0, 1), {raw("O 0 0 0 # oxygen"), raw("! done")}})},
};
INSTANTIATE_TEST_SUITE_P(Lines, Reading, testing::ValuesIn(line_rows),
                         [](const auto& row) { return row.param.name; });

const ReadingRow header_rows[] = {
    {"HeaderLinesOnly", "#opt\n#model = m1\n",
     read_as({{flag("opt"), assignment("model", "m1")}}, {no_section})},
    {"BlankLinesBeforeTheFirst", "\n\n#opt", read_as({{flag("opt")}}, {no_section})},
    {"BlankLinesBetween", "#opt\n\n \t\n#freq\n0 1",
     read_as({{flag("opt"), flag("freq")}, charged(0, 1)})},
    {"EveryCommandIsKept", "#\n#opt\n#=\n#opt\n0 1",
     read_as({{flag(""), flag("opt"), assignment("", ""), flag("opt")}, charged(0, 1)},
             {"Line 1: empty QUILL header command", "Line 3: QUILL header command has no name"})},
    {"AnyOtherLineEndsIt", "#opt\nnote\n#freq\n",
     read_as({{flag("opt")}, {}, {raw("note"), raw("#freq")}}, {no_section})},
    {"ChargeAndMultiplicityEndIt", "#opt\n0 1\n#freq\n",
     read_as({{flag("opt")}, charged(0, 1), {raw("#freq")}})},
    {"AnAtomEndsIt", "#opt\nO 0 0 0\n#freq\n",
     read_as({{flag("opt")}, atoms({oxygen}), {raw("#freq")}})},
    {"AReferenceEndsIt", "#opt\nXYZ a.xyz\n#freq\n",
     read_as({{flag("opt")}, files({"a.xyz"}), {raw("#freq")}})},
    {"ATrajectoryEndsIt", "#opt\nXYZTRAJ t.xyz\n#freq\n",
     read_as({{flag("opt")}, trajectory({"t.xyz"}), {raw("#freq")}})},
    {"APostProcessingLineEndsIt", "#opt\nC 1\n#freq\n",
     read_as({{flag("opt")}, {}, {constraint(Kind::AtomConstraint, {1}, "C 1"), raw("#freq")}},
             {no_section})},
    {"TheHashDecidesAndNotTheRest", "#0 1\n#O 0 0 0\n#XYZ a\n# C 1",
     read_as({{flag("0 1"), flag("O 0 0 0"), flag("XYZ a"), flag("C 1")}}, {no_section})},
};
INSTANTIATE_TEST_SUITE_P(Header, Reading, testing::ValuesIn(header_rows),
                         [](const auto& row) { return row.param.name; });

const ReadingRow charge_rows[] = {
    {"Alone", "0 1", read_as({{}, charged(0, 1)})},
    {"AfterBlankLines", "\n\n-1 2\n\n", read_as({{}, charged(-1, 2)})},
    {"BlankLinesBeforeTheCoordinates", "0 1\n\n \t\n\nO 0 0 0",
     read_as({{}, charged(0, 1, atoms({oxygen}))})},
    {"IsOptional", "O 0 0 0", read_as({{}, atoms({oxygen})})},
    {"IsReadOnce", "0 1\n1 2\nO 0 0 0", read_as({{}, charged(0, 1), {raw("1 2"), raw("O 0 0 0")}})},
    {"AfterTheAtomsItIsText", "O 0 0 0\n0 1", read_as({{}, atoms({oxygen}), {raw("0 1")}})},
    {"AfterAReferenceItIsText", "XYZ a\n0 1", read_as({{}, files({"a"}), {raw("0 1")}})},
    {"ThreeIntegersAreText", "1 2 3\nO 0 0 0",
     read_as({{}, {}, {raw("1 2 3"), raw("O 0 0 0")}}, {no_section})},
    {"OneIntegerIsText", "0\n", read_as({{}, {}, {raw("0")}}, {no_section})},
    {"AFractionIsText", "0 1.0\nO 0 0 0",
     read_as({{}, {}, {raw("0 1.0"), raw("O 0 0 0")}}, {no_section})},
    {"AWordIsText", "0 x", read_as({{}, {}, {raw("0 x")}}, {no_section})},
    {"ANumberTooLargeIsText", "0 2147483648",
     read_as({{}, {}, {raw("0 2147483648")}}, {no_section})},
    {"NoRangeIsChecked", "2147483647 -2147483648",
     read_as({{}, charged(2147483647, -2147483647 - 1)})},
    {"AMultiplicityOfZero", "0 0\nXYZ a", read_as({{}, charged(0, 0, files({"a"}))})},
};
INSTANTIATE_TEST_SUITE_P(Charge, Reading, testing::ValuesIn(charge_rows),
                         [](const auto& row) { return row.param.name; });

const ReadingRow post_rows[] = {
    {"AfterChargeAndMultiplicityOnly", "0 1\nC 1",
     read_as({{}, charged(0, 1), {constraint(Kind::AtomConstraint, {1}, "C 1")}})},
    {"AfterTheHeaderOnly", "#opt\nC 1",
     read_as({{flag("opt")}, {}, {constraint(Kind::AtomConstraint, {1}, "C 1")}}, {no_section})},
    {"WithoutAnythingBefore", "C 1",
     read_as({{}, {}, {constraint(Kind::AtomConstraint, {1}, "C 1")}}, {no_section})},
    {"BlankLinesAreSkipped", "0 1\n\nnote\n\n \t\nC 1\n\n",
     read_as({{}, charged(0, 1), {raw("note"), constraint(Kind::AtomConstraint, {1}, "C 1")}})},
    {"NothingIsAnAtomAnyMore", "O 0 0 0\nnote\nH 0 0 1",
     read_as({{}, atoms({oxygen}), {raw("note"), raw("H 0 0 1")}})},
    {"NothingIsAReferenceAnyMore", "0 1\nnote\nXYZ a\nXYZTRAJ t",
     read_as({{}, charged(0, 1), {raw("note"), raw("XYZ a"), raw("XYZTRAJ t")}})},
    {"NothingIsAChargeAnyMore", "note\n0 1",
     read_as({{}, {}, {raw("note"), raw("0 1")}}, {no_section})},
    {"LinesAfterABadOneAreReadAsUsual", "0 1\nB 1 x\nB 1 2\n",
     read_as({{}, charged(0, 1), {constraint(Kind::BondConstraint, {1, 2}, "B 1 2")}},
             {"Line 2: ignored unrecognized QUILL post-processing line"})},
};
INSTANTIATE_TEST_SUITE_P(PostProcessing, Reading, testing::ValuesIn(post_rows),
                         [](const auto& row) { return row.param.name; });

TEST(ReadingViews, AcceptsAViewOfNothing) {
  EXPECT_EQ(parse_string(std::string_view()), read_as({}, {no_section}));
}

TEST(ReadingViews, StopsWhereTheViewEnds) {
  const std::string_view text = "O 0 0 123\nC 1";
  EXPECT_EQ(parse_string(text.substr(0, 7)), read_as({{}, atoms({{"O", 0.0, 0.0, 1.0}})}));
}

TEST(ReadingViews, ReadsNotAByteBeyondTheView) {
  const std::string text = "#opt(a='1\n0 1\nO 0 0 123\nS 1 2 1.5 10";
  for (std::size_t size = 0; size <= text.size(); ++size) {
    // Each size has its own block: a sanitizer reports a read of the first byte after it.
    const std::vector<char> block(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(size));
    EXPECT_EQ(parse_string(std::string_view(block.data(), size)),
              parse_string(text.substr(0, size)));
  }
}

TEST(ReadingAtoms, KeepsNoRoomForLinesThatAreNotAtoms) {
  std::string text = "O 0 0 0\nO 0 0 0\n";
  for (int i = 0; i < 10000; ++i) text += "note\n";
  const ParseResult result = parse_string(text);
  EXPECT_EQ(result.input.geometry.atoms.size(), 2U);
  EXPECT_LE(result.input.geometry.atoms.capacity(), 4U);
  EXPECT_EQ(parse_string("0 1\nnote\n").input.geometry.atoms.capacity(), 0U);
}

TEST(ReadingAtoms, TakesLessThanTwiceTheRoomOfTheAtoms) {
  constexpr std::size_t lines = 60;
  for (std::size_t count = 1; count <= lines; ++count) {
    std::string text;
    for (std::size_t i = 0; i < lines; ++i) text += i < count ? "O 0 0 0\n" : "note\n";
    const ParseResult result = parse_string(text);
    EXPECT_EQ(result.input.geometry.atoms.size(), count);
    EXPECT_LT(result.input.geometry.atoms.capacity(), 2 * count);
    // The atoms are not copied into a smaller block when that would save little.
    if (count > lines / 2) {
      EXPECT_EQ(result.input.geometry.atoms.capacity(), lines);
    }
  }
}

TEST(ReadingTwice, GivesTheSameAgain) {
  const std::string text = "#opt(\n1 2\nXx 1 2 3\nB 1 x";
  const ParseResult first = parse_string(text);
  EXPECT_NE(parse_string("#freq\n0 1\nXYZ a\nnote"), first);
  EXPECT_EQ(parse_string(text), first);
}

}  // namespace
}  // namespace kelp::input::quill
