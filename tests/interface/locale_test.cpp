// The same bytes are read and written under every locale, C or C++.

#include <gtest/gtest.h>

#include <cctype>
#include <clocale>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <ios>
#include <locale>
#include <sstream>
#include <stdexcept>
#include <string>

#include "interface/expected.hpp"
#include "kelp/input/quill/quill.hpp"
#include "support/comparison.hpp"
#include "support/printing.hpp"
#include "support/temporary_folder.hpp"

namespace kelp::input::quill {
namespace {

using namespace std::string_literals;

using Kind = PostCommandKind;

std::string file_content(const std::string& path) {
  std::ifstream file;
  file.imbue(std::locale::classic());
  file.open(path, std::ios_base::binary);
  std::string content(std::filesystem::file_size(path), '\0');
  file.read(content.data(), static_cast<std::streamsize>(content.size()));
  return content;
}

/// All results of the library for the text below: computed in one locale, compared in another.
struct Outcome {
  ParseResult read;
  ParseResult read_from_file;
  std::string text;
  std::string file;
  bool finds_command = false;
};

const std::string written_text =
    "#sp(tol=1.5, n=1234567)\n"
    "#Model = 1,5\n"
    "\n"
    "-12345 10000\n"
    "O  1234567.250000     -0.000001   1500.000000\n"
    "Cl -1000000.500000  99999.125000      0.500000\n"
    "\n"
    "S 1000000 2000000 1234.5 100000\n"
    "C 1234567\n";

// The blank lines make the line numbers of the warnings larger than a thousand.
const std::string read_text = written_text + std::string(1200, '\n') + "C 1,5\nB 1.000 2\n";

ParseResult expected_result() {
  return read_as(
      {{list("sp", {{"tol", "1.5"}, {"n", "1234567"}}), assignment("Model", "1,5")},
       charged(-12345, 10000,
               atoms({{"O", 1234567.25, -0.000001, 1500.0}, {"Cl", -1000000.5, 99999.125, 0.5}})),
       {scan({1000000, 2000000}, 1234.5, 100000, "S 1000000 2000000 1234.5 100000"),
        constraint(Kind::AtomConstraint, {1234567}, "C 1234567")}},
      {"Line 1210: ignored unrecognized QUILL post-processing line",
       "Line 1211: ignored unrecognized QUILL post-processing line"});
}

Outcome gather(const TemporaryFolder& folder) {
  const std::string input_path = folder.write("read.qin", read_text);
  const std::string output_path = folder.path("written.qin");
  Outcome outcome;
  outcome.read = parse_string(read_text);
  outcome.read_from_file = parse_file(input_path);
  outcome.text = outcome.read.input.to_string();
  outcome.read.input.write_file(output_path);
  outcome.file = file_content(output_path);
  outcome.finds_command = outcome.read.input.has_command(" #MODEL ");
  return outcome;
}

void expect_as_ever(const Outcome& outcome) {
  EXPECT_EQ(outcome.read, expected_result());
  EXPECT_EQ(outcome.read_from_file, expected_result());
  EXPECT_EQ(outcome.text, written_text);
  EXPECT_EQ(outcome.file, written_text);
  EXPECT_TRUE(outcome.finds_command);
}

/// Makes a locale the global one of the C++ library, for as long as the object lives.
class GlobalLocale {
 public:
  explicit GlobalLocale(const std::locale& locale) : before_(std::locale::global(locale)) {}
  GlobalLocale(const GlobalLocale&) = delete;
  GlobalLocale& operator=(const GlobalLocale&) = delete;
  ~GlobalLocale() { std::locale::global(before_); }

 private:
  std::locale before_;
};

/// Numbers as many countries write them: 1.234.567,25.
class CommaNumbers : public std::numpunct<char> {
 protected:
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

/// A locale in whose files every character is written as its successor.
class ShiftedFiles : public std::codecvt<char, char, std::mbstate_t> {
 protected:
  bool do_always_noconv() const noexcept override { return false; }
  int do_encoding() const noexcept override { return 1; }

  result do_out(std::mbstate_t& state, const char* from, const char* from_end,
                const char*& from_next, char* to, char* to_end, char*& to_next) const override {
    return shift(+1, state, from, from_end, from_next, to, to_end, to_next);
  }
  result do_in(std::mbstate_t& state, const char* from, const char* from_end,
               const char*& from_next, char* to, char* to_end, char*& to_next) const override {
    return shift(-1, state, from, from_end, from_next, to, to_end, to_next);
  }

 private:
  static result shift(int distance, std::mbstate_t&, const char* from, const char* from_end,
                      const char*& from_next, char* to, char* to_end, char*& to_next) {
    while (from != from_end && to != to_end) *to++ = static_cast<char>(*from++ + distance);
    from_next = from;
    to_next = to;
    return from == from_end ? ok : partial;
  }
};

std::locale comma_locale() { return std::locale(std::locale::classic(), new CommaNumbers); }

std::locale shifted_locale() { return std::locale(std::locale::classic(), new ShiftedFiles); }

/// Compiled locales have the byte order of the machine that they are for.
const char* byte_order_option() {
  const std::uint16_t one = 1;
  unsigned char first_byte = 0;
  std::memcpy(&first_byte, &one, 1);
  return first_byte == 1 ? "--little-endian" : "--big-endian";
}

/// Makes a locale the current one of the C library, for as long as the object lives. The locale is
/// compiled for the test, so that the test does not depend on those that are installed.
class CurrentCLocale {
 public:
  /// `source` is the name of a locale's source, or the path of one.
  CurrentCLocale(const std::string& source, const std::string& encoding)
      : before_(std::setlocale(LC_ALL, nullptr)) {
    const std::string name = "compiled." + encoding;
    const std::string command = "localedef --no-archive "s + byte_order_option() + " -i '" +
                                source + "' -f " + encoding + " '" + folder_.path(name) + "'";
    if (std::system(command.c_str()) != 0)
      throw std::runtime_error(
          "cannot compile a locale; is the package installed that brings localedef and "
          "/usr/share/i18n (on Debian, locales)?");
    setenv("LOCPATH", folder_.path().c_str(), 1);
    if (std::setlocale(LC_ALL, name.c_str()) == nullptr)
      throw std::runtime_error("cannot set the locale that was just compiled");
  }
  CurrentCLocale(const CurrentCLocale&) = delete;
  CurrentCLocale& operator=(const CurrentCLocale&) = delete;
  ~CurrentCLocale() {
    std::setlocale(LC_ALL, before_.c_str());
    unsetenv("LOCPATH");
  }

 private:
  TemporaryFolder folder_;
  std::string before_;
};

std::string printed_by_c(double number) {
  char text[32];
  std::snprintf(text, sizeof text, "%.1f", number);
  return text;
}

std::string printed_by_a_stream(double number) {
  std::ostringstream out;
  out << std::fixed << number;
  return out.str();
}

TEST(Locale, ClassicIsTheMeasure) {
  const TemporaryFolder folder;
  expect_as_ever(gather(folder));
}

TEST(Locale, OfDecimalCommaAndGroupingChangesNothing) {
  const TemporaryFolder folder;
  Outcome outcome;
  std::string by_a_stream;
  {
    const GlobalLocale locale(comma_locale());
    by_a_stream = printed_by_a_stream(1234.5);
    outcome = gather(folder);
  }
  EXPECT_EQ(by_a_stream, "1.234,500000") << "the locale is not in force";
  expect_as_ever(outcome);
}

TEST(Locale, ThatConvertsFilesChangesNothing) {
  const TemporaryFolder folder;
  Outcome outcome;
  {
    const GlobalLocale locale(shifted_locale());
    std::ofstream(folder.path("probe")) << "HAL";
    outcome = gather(folder);
  }
  EXPECT_EQ(file_content(folder.path("probe")), "IBM") << "the locale is not in force";
  expect_as_ever(outcome);
}

TEST(Locale, OfTheCLibraryWithDecimalCommaChangesNothing) {
  const TemporaryFolder folder;
  Outcome of_c_alone;
  Outcome of_both;
  std::string by_c;
  std::string by_a_stream;
  {
    const CurrentCLocale c_locale("de_DE", "UTF-8");
    of_c_alone = gather(folder);
    const GlobalLocale locale(comma_locale());
    by_c = printed_by_c(1.5);
    by_a_stream = printed_by_a_stream(1.5);
    of_both = gather(folder);
  }
  EXPECT_EQ(by_c, "1,5") << "the locale is not in force";
  EXPECT_EQ(by_a_stream, "1,500000") << "the locale is not in force";
  expect_as_ever(of_c_alone);
  expect_as_ever(of_both);
}

/// The source of a locale in which the no-break space is white space.
std::string source_with_a_further_space() {
  std::string source =
      "comment_char %\nescape_char /\n"
      "LC_CTYPE\n"
      "upper <U0041>..<U005A>\n"
      "lower <U0061>..<U007A>\n"
      "toupper (<U0061>,<U0041>)\n"
      "tolower (<U0041>,<U0061>)\n"
      "space <U0009>..<U000D>;<U0020>;<U00A0>\n"
      "END LC_CTYPE\n";
  for (const char* const category :
       {"COLLATE", "MONETARY", "NUMERIC", "TIME", "MESSAGES", "PAPER", "NAME", "ADDRESS",
        "TELEPHONE", "MEASUREMENT", "IDENTIFICATION"}) {
    source += "LC_"s + category + "\ncopy \"de_DE\"\nEND LC_" + category + "\n";
  }
  return source;
}

TEST(Locale, DecidesOnTheBlanksAfterAFirstWordOnlyWhereBytesAreBlanks) {
  const TemporaryFolder folder;
  const std::string text = "XYZ \xA0 a.xyz\nPOST \xA0 out\n";
  ParseResult in_one_byte;
  ParseResult in_utf8;
  {
    const CurrentCLocale locale(folder.write("source", source_with_a_further_space()),
                                "ISO-8859-1");
    in_one_byte = parse_string(text);
  }
  {
    const CurrentCLocale locale("de_DE", "UTF-8");
    in_utf8 = parse_string(text);
  }
  EXPECT_EQ(in_one_byte, read_as({{}, files({"a.xyz"}), {post_file("out", "POST \xA0 out")}}));
  EXPECT_EQ(in_utf8,
            read_as({{}, files({"\xA0 a.xyz"}), {post_file("\xA0 out", "POST \xA0 out")}}));
}

TEST(Locale, DoesNotDecideOnLetterCase) {
  const CurrentCLocale locale("de_DE", "ISO-8859-1");
  const QuillInput input = parse_string("#\xE4\n\xE4\xC4 1 2 3\n").input;
  EXPECT_EQ(std::tolower(0xC4), 0xE4) << "the locale is not in force";
  EXPECT_EQ(input, QuillInput({flag("\xE4")}, atoms({{"\xE4\xC4", 1, 2, 3}})));
  EXPECT_TRUE(input.has_command("\xE4"));
  EXPECT_FALSE(input.has_command("\xC4"));
}

TEST(Locale, DecidesOnTheLettersOfASymbolOnlyWhereBytesAreLetters) {
  // The C library decides which bytes are letters in the symbol of an atom. In a locale with one
  // byte for each character there are more than "A" to "Z"; in UTF-8 no byte above 0x7F is a
  // letter. The byte 0xFF must not be taken for the end of a file.
  const std::string text = "\xFF 1 2 3\n\xC4 1 2 3\nO 1 2 3\n";
  ParseResult in_one_byte;
  ParseResult in_utf8;
  {
    const CurrentCLocale locale("de_DE", "ISO-8859-1");
    in_one_byte = parse_string(text);
  }
  {
    const CurrentCLocale locale("de_DE", "UTF-8");
    in_utf8 = parse_string(text);
  }
  EXPECT_EQ(
      in_one_byte,
      read_as({{}, atoms({{"\xFF", 1, 2, 3}, {"\xC4", 1, 2, 3}, {"O", 1, 2, 3}})},
              {"Line 1: unknown element symbol '\xFF'", "Line 2: unknown element symbol '\xC4'"}));
  EXPECT_EQ(in_utf8, read_as({{}, {}, {raw("\xFF 1 2 3"), raw("\xC4 1 2 3"), raw("O 1 2 3")}},
                             {no_section}));
}

}  // namespace
}  // namespace kelp::input::quill
