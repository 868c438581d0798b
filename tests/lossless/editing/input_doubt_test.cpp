#include "kelp/input/quill/lossless/input_doubt.hpp"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "kelp/input/quill/lossless/wording.hpp"

namespace kelp::input::quill::lossless {

namespace {

using namespace std::string_view_literals;
using Kind = InputDoubt::Kind;

struct Row {
  std::string_view name;
  std::string_view text;
  std::optional<Kind> kind = std::nullopt;
  std::optional<std::size_t> line = std::nullopt;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }

const Row rows[] = {
    {"NothingAtAll", ""},
    {"BlankLines", "\n \t\r\n"},
    {"AHeaderLine", "#sp\n"},
    {"AHeaderLineBeforeText", "# notes\n\n  do it\n"},
    {"ChargeAndMultiplicity", "0 1\n"},
    {"AnAtom", "\n\nHe 0 0 0\n"},
    {"AReferenceWithoutAPath", "XYZ\n"},
    {"ATrajectory", "XYZTRAJ path.xyz\n"},
    {"RawTextOnly", "import os\n\n#sp\n", Kind::NoSections},
    {"AConstraintOnly", "B 1 2\n", Kind::NoSections},
    {"ADroppedLineOnly", "B 1 x\n", Kind::NoSections},
    {"AHeaderLineAfterText", "x\n#sp\n0 1\n", Kind::NoSections},
    {"AScript", "#!/bin/sh\n#SBATCH --nodes=2\n0 1\n", Kind::Script, 1},
    {"AScriptMarkFurtherDown", "#sp\n#!/bin/sh\n"},
    {"AnExclamationMarkAfterABlank", "# !\n"},
    {"ANulByteInTheFirstLine", "#sp\0\n0 1\n"sv, Kind::NulByte, 1},
    {"ANulByteInALineEnd", "#sp\r\0\n0 1\n"sv, Kind::NulByte, 1},
    {"ANulByteInTheLastLine", "#sp\n0 1\n\0"sv, Kind::NulByte, 3},
    {"ANulByteFirst", "\0#sp\n0"sv, Kind::Utf16BigEndian, 1},
    {"ANulByteFirstInAnOddText", "\0#s\n0"sv, Kind::NulByte, 1},
    {"TwoNulBytesFirst", "\0\0#s"sv, Kind::NulByte, 1},
    {"AByteOrderMark", "\xEF\xBB\xBF#sp\n0 1\n", Kind::ByteOrderMark, 1},
    {"AByteOrderMarkAlone", "\xEF\xBB\xBF", Kind::ByteOrderMark, 1},
    {"TwoThirdsOfAByteOrderMark", "\xEF\xBB#sp\n", Kind::NoSections},
    {"AByteOrderMarkInTheMiddle", "#sp\n\xEF\xBB\xBF\n"},
    {"Utf16WithALittleEndianMark", "\xFF\xFE#\0s\0p\0"sv, Kind::Utf16, 1},
    {"Utf16WithABigEndianMark", "\xFE\xFF\0#\0s\0p"sv, Kind::Utf16, 1},
    {"Utf16LittleEndian", "#\0s\0p\0\n\0"sv, Kind::Utf16LittleEndian, 1},
    {"Utf16BigEndian", "\0#\0s\0p\0\n"sv, Kind::Utf16BigEndian, 1},
    {"OneByte", "#"},
};

class InputDoubts : public testing::TestWithParam<Row> {};

TEST_P(InputDoubts, AreFound) {
  const auto doubt = find_input_doubt(read_text(std::string(GetParam().text)));
  ASSERT_EQ(doubt.has_value(), GetParam().kind.has_value());
  if (!doubt) return;
  EXPECT_EQ(doubt->kind, *GetParam().kind);
  EXPECT_EQ(doubt->line, GetParam().line);
}

INSTANTIATE_TEST_SUITE_P(Table, InputDoubts, testing::ValuesIn(rows),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(InputDoubtWords, NameTheReasonAndTheCure) {
  const auto of = [](Kind kind) { return words(InputDoubt{kind}); };
  EXPECT_EQ(of(Kind::ByteOrderMark),
            "begins with a byte order mark, which the reader takes for text; 'tail -c +4 FILE' "
            "prints the text without it");
  EXPECT_EQ(of(Kind::Utf16),
            "is in UTF-16, which the reader cannot read; 'iconv -f UTF-16 -t UTF-8 FILE' prints it "
            "as UTF-8");
  EXPECT_EQ(of(Kind::Utf16LittleEndian),
            "is in UTF-16, which the reader cannot read; 'iconv -f UTF-16LE -t UTF-8 FILE' prints "
            "it as UTF-8");
  EXPECT_EQ(of(Kind::Utf16BigEndian),
            "is in UTF-16, which the reader cannot read; 'iconv -f UTF-16BE -t UTF-8 FILE' prints "
            "it as UTF-8");
  EXPECT_EQ(of(Kind::NulByte), "does not look like a QUILL input: it has a NUL byte");
  EXPECT_EQ(of(Kind::Script),
            "does not look like a QUILL input: its first line is that of a script");
  EXPECT_EQ(of(Kind::NoSections),
            "does not look like a QUILL input: it has no header line and no coordinates");
}

}  // namespace

}  // namespace kelp::input::quill::lossless
