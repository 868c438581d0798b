// Bytes outside ASCII and NUL bytes are characters like any other.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <regex>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "interface/expected.hpp"
#include "kelp/input/quill/quill.hpp"
#include "support/comparison.hpp"
#include "support/printing.hpp"
#include "support/temporary_folder.hpp"

namespace kelp::input::quill {
namespace {

using namespace std::string_literals;

using Kind = PostCommandKind;

class Bytes : public testing::TestWithParam<ReadingRow> {};

TEST_P(Bytes, AreReadAs) { EXPECT_EQ(parse_string(GetParam().text), GetParam().result); }

const ReadingRow rows[] = {
    {"ANulByteAlone", "\0"s, read_as({{}, {}, {raw("\0"s)}}, {no_section})},
    {"ANulByteBeforeTheHash", "\0#opt\n0 1"s,
     read_as({{}, {}, {raw("\0#opt"s), raw("0 1")}}, {no_section})},
    {"AByteOrderMarkBeforeTheHash", "\xEF\xBB\xBF#opt\n",
     read_as({{}, {}, {raw("\xEF\xBB\xBF#opt")}}, {no_section})},
    {"ANulByteIsNotAName", "#\0\n0 1"s, read_as({{flag("\0"s)}, charged(0, 1)})},
    {"ANulByteInTheCharge", "0\0 1"s, read_as({{}, {}, {raw("0\0 1"s)}}, {no_section})},
    {"ANulByteInASymbol", "O\0 0 0 0"s, read_as({{}, {}, {raw("O\0 0 0 0"s)}}, {no_section})},
    {"ANulByteAfterACoordinate", "O 0 0 0\0"s,
     read_as({{}, {}, {raw("O 0 0 0\0"s)}}, {no_section})},
    {"AByteOutsideAsciiInASymbol", "\xC3\x84 0 0 0",
     read_as({{}, {}, {raw("\xC3\x84 0 0 0")}}, {no_section})},
    {"ANulByteInAKeyword", "0 1\nPOST\0 x"s, read_as({{}, charged(0, 1), {raw("POST\0 x"s)}})},
    {"ANulByteAfterAnAtomNumber", "0 1\nC 1\0"s,
     read_as({{}, charged(0, 1)}, {"Line 2: ignored unrecognized QUILL post-processing line"})},
    {"ANoBreakSpaceIsNotABlank",
     "#a\xC2\xA0\n0\xC2\xA0"
     "1",
     read_as({{flag("a\xC2\xA0")},
              {},
              {raw("0\xC2\xA0"
                   "1")}},
             {no_section})},
    {"TextInUtf8", "#étude = '水'\n0 1\nXYZ géométrie 1.xyz\nPOST sørensen.dat\nΔE\n",
     read_as({{assignment("étude", "水")},
              charged(0, 1, files({"géométrie 1.xyz"})),
              {post_file("sørensen.dat", "POST sørensen.dat"), raw("ΔE")}})},
};
INSTANTIATE_TEST_SUITE_P(Table, Bytes, testing::ValuesIn(rows),
                         [](const auto& row) { return row.param.name; });

/// A document with the byte in every place that holds text.
QuillInput document_full_of(char byte) {
  const std::string c(1, byte);
  const std::string post = "-" + c + "-" + c;
  const std::string path = "x" + c + "y";
  return QuillInput(
      {flag("n" + c + "n"), assignment("a" + c + "a", "v" + c + "v"),
       list("l" + c + "l", {{"p" + c + "p", "q" + c + "q"}, {"r" + c + "r"}})},
      charged(0, 1, files({path, path + path})),
      {post_file(path, "POST " + path), raw("-" + c + "-"), constraint(Kind::Raw, {}, post + "-")});
}

TEST(EveryByte, IsKeptWhereverTextIsKept) {
  // These have a meaning in at least one of the places; "\r" and the other blanks have none between
  // other characters.
  const std::string_view meaningful = "\n#(),='\"";
  const TemporaryFolder folder;
  const std::string path = folder.path("job.qin");
  for (int value = 0; value < 256; ++value) {
    const char byte = static_cast<char>(value);
    if (meaningful.find(byte) != std::string_view::npos) continue;
    SCOPED_TRACE("byte " + std::to_string(value));
    const QuillInput document = document_full_of(byte);
    EXPECT_EQ(parse_string(document.to_string()), read_as(document));
    document.write_file(path);
    EXPECT_EQ(parse_file(path), read_as(document));
  }
}

const std::string samples[] = {
    "#opt(maxiter=50, tight, label='a, b')\n"
    "#model = \"b3 lyp\"\n"
    "# freq\n"
    "\n"
    "0 1\n"
    "O  0.0 0.0    0.1173\n"
    "H  0.0 0.7572 -4.692e-1\n"
    "\n"
    "B 1 2\n"
    "S 1 2 1.5 10\n"
    "POST out file.dat\n"
    "some note\n",

    "#sp\r\n"
    "-1 2\r\n"
    "\r\n"
    "XYZ first file.xyz\r\n"
    "\r\n"
    "xyz c.xyz\r\n"
    "A 1 2 3\r\n"
    "D 1 2 3 4\r\n"
    "post r s\r\n"
    "C 4",

    "  ##scan (a=(1), 'b c'=\"x,y\",,d=)\n"
    "#irc=f(x)=1\n"
    "\tXYZTRAJ path to it\t\n"
    "XYZ other\n"
    "#late\n"
    "s 1 2 3 4 -12.5 6\n"
    "c 1\n",
};

std::size_t count_lines(std::string_view text) {
  return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n')) + 1;
}

/// For any text: it is read, each warning is one of the known ones and names a line of the text,
/// and the warnings are in the order of the lines.
void expect_sound(const std::string& text, const ParseResult& result) {
  static const std::regex pattern(
      "Line ([1-9][0-9]*): (empty QUILL header command|missing '\\)' in QUILL header command"
      "|ignored trailing text after QUILL header command|QUILL header command has no name"
      "|XYZ reference has no file path|XYZTRAJ reference has no file path"
      "|unknown element symbol '[A-Z][a-z]*'|ignored unrecognized QUILL post-processing line)");
  EXPECT_TRUE(result.ok);
  EXPECT_EQ(result.error, "");
  std::vector<std::string> warnings = result.warnings;
  if (!warnings.empty() && warnings.back() == no_section) warnings.pop_back();
  std::size_t previous = 1;
  for (const std::string& warning : warnings) {
    std::smatch match;
    ASSERT_TRUE(std::regex_match(warning, match, pattern)) << testing::PrintToString(warning);
    const std::size_t line = std::stoul(match[1]);
    EXPECT_GE(line, previous);
    EXPECT_LE(line, count_lines(text));
    previous = line;
  }
}

void expect_sound_and_kept(const std::string& text, char byte) {
  SCOPED_TRACE(testing::PrintToString(text));
  const ParseResult result = parse_string(text);
  expect_sound(text, result);
  const std::string written = result.input.to_string();
  // No byte of any line is lost without a warning.
  EXPECT_TRUE(written.find(byte) != std::string::npos || !result.warnings.empty());
  expect_sound(written, parse_string(written));
}

class ByteInSample : public testing::TestWithParam<std::tuple<std::string, int>> {
 protected:
  std::string sample() const { return std::get<0>(GetParam()); }
  char byte() const { return static_cast<char>(std::get<1>(GetParam())); }
};

TEST_P(ByteInSample, MayReplaceAnyByte) {
  for (std::size_t i = 0; i < sample().size(); ++i) {
    std::string text = sample();
    text[i] = byte();
    expect_sound_and_kept(text, byte());
  }
}

TEST_P(ByteInSample, MayBeAnywhere) {
  for (std::size_t i = 0; i <= sample().size(); ++i) {
    std::string text = sample();
    text.insert(i, 1, byte());
    expect_sound_and_kept(text, byte());
  }
}

std::string name_of(const testing::TestParamInfo<std::tuple<std::string, int>>& info) {
  const auto* const sample =
      std::find(std::begin(samples), std::end(samples), std::get<0>(info.param));
  return "Sample" + std::to_string(sample - std::begin(samples)) + "Byte" +
         std::to_string(std::get<1>(info.param));
}

INSTANTIATE_TEST_SUITE_P(Each, ByteInSample,
                         testing::Combine(testing::ValuesIn(samples),
                                          testing::Values(0x00, 0x80, 0xFF)),
                         name_of);

TEST(Samples, DrawNoWarningAsTheyAre) {
  for (const std::string& sample : samples)
    EXPECT_THAT(parse_string(sample).warnings, testing::IsEmpty()) << sample;
}

}  // namespace
}  // namespace kelp::input::quill
