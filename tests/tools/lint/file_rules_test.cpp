#include <gtest/gtest.h>

#include "lint/lint.hpp"
#include "lint/wording.hpp"
#include "tools/lint/marked_rows.hpp"

namespace kelp::input::quill::lint {

namespace {

const MarkedRow rows[] = {
    {"AByteOrderMark",
     "\357\273\277#opt\n"
     "^^^ QL001 the text begins with a byte order mark, which the reader takes for letters of the "
     "first line\n"
     "0 1\n"
     "He 0 0 0\n"},
    {"AByteOrderMarkBeforeCoordinates",
     "\357\273\2770 1\n"
     "^^^ QL001 the text begins with a byte order mark, which the reader takes for letters of the "
     "first line\n"
     "He 0 0 0\n"},
    {"CarriageReturnsAlone",
     "#opt\n"
     "0 1\n"
     "He 0 0 0\n"},
    {"ACarriageReturnInOneLine",
     "#opt\n"
     "0 1\n"
     "H 0 0 0\n"
     "H 0 0 0.741\n"},
    {"CarriageReturnsAtTheEndOfALineAreFine",
     "#opt\n"
     "\n"
     "0 1 \n"
     "\n"
     "He 0 0 0\n"},
    {"MixedLineEnds",
     "#opt\n"
     "0 1\n"
     "He 0 0 0\n"},
    {"MixedLineEndsTheOtherWayRound",
     "#opt\n"
     "0 1\n"
     "He 0 0 0\n"},
    {"OneKindOfLineEndsAndNoneAtTheEnd",
     "#opt\n"
     "0 1\n"
     "He 0 0 0\n"},
    {"BlanksOfUnicode",
     "#\302\240opt\n"
     " ^^ QL004 U+00A0 looks like a blank and is read as a letter\n"
     "#model\302\240= m\302\2401\n"
     "      ^^ QL004 U+00A0 looks like a blank and is read as a letter; one more is on this line\n"
     "0 1\n"
     "He 0 0 0\n"
     "C\302\2401\n"
     " ^^ QL004 U+00A0 looks like a blank and is read as a letter\n"
     "some\302\240text\302\240\n"
     "    ^^ QL004 U+00A0 looks like a blank and is read as a letter; one more is on this line\n"},
    {"InvisibleCharacters",
     "#opt\342\200\213\n"
     "    ^^^ QL005 U+200B cannot be seen and is read as a letter\n"
     "#mo\302\255del = m1\n"
     "   ^^ QL005 U+00AD cannot be seen and is read as a letter\n"
     "0 1\n"
     "He 0 0 0\n"
     "te\357\273\277xt\342\200\256\n"
     "  ^^^ QL005 U+FEFF cannot be seen and is read as a letter; one more is on this line\n"},
    {"AnInvisibleCharacterAndABlank",
     "#opt\n"
     "0 1\n"
     "He 0 0 0\n"
     "te\342\200\213\302\240xt\n"
     "  ^^^ QL005 U+200B cannot be seen and is read as a letter\n"
     "     ^^ QL004 U+00A0 looks like a blank and is read as a letter\n"},
    {"APythonScript",
     "import sys\n"
     "< QL009 nothing in the text is a command or a coordinate; the reader keeps all of it as "
     "text\n"
     "\n"
     "for name in sys.argv:\n"
     "    print(name)\n"},
    {"AScriptWithAShebang",
     "#!/bin/sh\n"
     "^^ QL009 nothing in the text is a command or a coordinate; the reader keeps all of it as "
     "text\n"
     "# prints something\n"
     "echo 1\n"},
    {"AMakefile",
     "# builds all\n"
     "< QL009 nothing in the text is a command or a coordinate; the reader keeps all of it as "
     "text\n"
     "all: job\n"
     "	cc -o job job.c\n"},
    {"ATextOfComments",
     "# one\n"
     "< QL113 No QUILL coordinate section found\n"
     "< QL209 no command says what to compute\n"
     "# two\n"},
    {"AnInputOfConstraintsAlone",
     "B 1 2\n"
     "< QL009 nothing in the text is a command or a coordinate; the reader keeps all of it as "
     "text\n"},
    {"ATaskAndText",
     "#opt\n"
     "< QL113 No QUILL coordinate section found\n"
     "some text\n"},
    {"Nothing",
     "< QL009 nothing in the text is a command or a coordinate; the reader keeps all of it as "
     "text\n"},
    {"BlanksAlone",
     " \n"
     "< QL009 nothing in the text is a command or a coordinate; the reader keeps all of it as "
     "text\n"
     "\n"},
};

class FileRules : public MarkedRows {};

TEST_P(FileRules, FindExactlyThis) { expect_marks(); }

INSTANTIATE_TEST_SUITE_P(Table, FileRules, testing::ValuesIn(rows), name_of_row);

/// Bytes that no text shows, and what is said of them.
struct BytesRow {
  std::string_view name;
  std::string bytes;
  std::string words;  // the code, the place and the message of the one finding
};

void PrintTo(const BytesRow& row, std::ostream* out) { *out << row.name; }

using namespace std::string_literals;

const BytesRow bytes_rows[] = {
    {"NulBytes", "#opt\n0 1\nHe 0 0 0\nC\0 1\0\n"s, "QL008 19+1 2 NUL bytes are in the text"},
    {"ANulByte", "#opt\n0 1\nHe 0 0 0\n\0"s, "QL008 18+1 a NUL byte is in the text"},
    {"Utf16WithAMark", "\xFF\xFE#\0o\0p\0t\0"s, "QL006 0+2 the text is in UTF-16"},
    {"Utf16OfTheOtherOrder", "\xFE\xFF\0#\0o\0p\0t"s, "QL006 0+2 the text is in UTF-16"},
    {"Utf16WithoutAMark", "#\0o\0p\0t\0\n\0"s, "QL006 0+1 the text is in UTF-16"},
    {"Utf16OfTheOtherOrderWithoutAMark", "\0#\0o\0p\0t"s, "QL006 0+1 the text is in UTF-16"},
    {"TooLittleToBeUtf16", "#\0o\0p\0"s, "QL008 1+1 3 NUL bytes are in the text"},
    {"AProgram",
     "\x7F"
     "ELF\2\1\1\0\0"s,
     "QL007 0+4 the file is a program"},
    {"AnImage", "\x89PNG\r\n\x1A\n\0\0"s, "QL007 0+6 the file is an image"},
    {"ADocument", "%PDF-1.7\n"s, "QL007 0+5 the file is a PDF document"},
    {"AnArchive", "PK\3\4\n"s, "QL007 0+4 the file is an archive"},
    {"ACompressedFile", "\x1F\x8B\x08\0"s, "QL007 0+3 the file is a compressed file"},
    {"ASignatureThatIsNotWhole", "#opt\n0 1\nHe 0 0 0\n%PDF\n"s, ""},
};

class FileBytes : public testing::TestWithParam<BytesRow> {};

TEST_P(FileBytes, DrawExactlyThis) {
  const lossless::ReadText read = lossless::read_text(GetParam().bytes);
  std::string words;
  for (const Finding& finding : find_all(read, Options()))
    words += std::string(finding.code) + " " + std::to_string(finding.range.offset) + "+" +
             std::to_string(finding.range.length) + " " + words_of(finding).message;
  EXPECT_EQ(words, GetParam().words);
}

INSTANTIATE_TEST_SUITE_P(Table, FileBytes, testing::ValuesIn(bytes_rows),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(MarkedLineEnds, AreOfOneKindWhenTheLastLineHasNone) {
  EXPECT_EQ(marked_anew("#opt\r\n0 1\r\nHe 0 0 0"), "#opt\r\n0 1\r\nHe 0 0 0");
}

}  // namespace

}  // namespace kelp::input::quill::lint
