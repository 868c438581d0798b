// Every line of four tokens, each of a class of tokens that some reader of lines tells apart, in
// every section.

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "properties/holds.hpp"
#include "properties/line_readers.hpp"
#include "properties/reading.hpp"

namespace kelp::input::quill {
namespace {

constexpr std::string_view tokens[] = {
    "C",           // keyword of a line with two tokens, and an element
    "b",           // with three, in the other letter case
    "A",           // with four, and no element
    "d",           // with five
    "S",           // with five to seven
    "POST",        // with two and more, and a word of letters
    "XYZ",         // keyword of a reference
    "xyztraj",     // and of the other
    "fe",          // an element
    "x1",          // no word of letters
    "#a",          // the beginning of a header line
    "7",           // an integer
    "+07",         // one with a sign
    "2147483648",  // one that does not fit, but a number all the same
    "-.5d0",       // a number
    "1e999",       // none, since it is too large
    "inf",         // a number and a word of letters
    "1.5x",        // neither
};

/// The text before the line, which decides the section that the line is in.
constexpr std::string_view openings[] = {"", "0 1\n", "H 0 0 0\n", "XYZ a\n", "XYZTRAJ a\n"};

class EveryLineOfFourTokens : public testing::TestWithParam<std::string_view> {
 protected:
  /// Calls `check` with every line that begins with the parameter.
  template <typename Check>
  static void for_each_line(Check check) {
    for (const std::string_view second : tokens)
      for (const std::string_view third : tokens)
        for (const std::string_view fourth : tokens) {
          std::string line(GetParam());
          for (const std::string_view token : {second, third, fourth})
            line.append(" ").append(token);
          check(line);
        }
  }
};

TEST_P(EveryLineOfFourTokens, IsReadAsTheObviousReaderReadsIt) {
  for_each_line(
      [](const std::string& line) { EXPECT_TRUE(holds([&] { check_line_readers(line); })); });
}

TEST_P(EveryLineOfFourTokens, IsReadSoInEverySection) {
  for_each_line([](const std::string& line) {
    for (const std::string_view opening : openings) {
      const std::string text = std::string(opening) + line;
      EXPECT_TRUE(holds([&] { check_against_obvious_reader(text, parse_string(text)); }));
    }
  });
}

TEST(AWrongAnswerOfALineReader, IsNoticed) {
  EXPECT_FALSE(holds([] { check_line_readers("#a", "#b"); }));
}

INSTANTIATE_TEST_SUITE_P(First, EveryLineOfFourTokens, testing::ValuesIn(tokens));

}  // namespace
}  // namespace kelp::input::quill
