// Twice the text takes about twice the time.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <ctime>
#include <limits>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "interface/expected.hpp"
#include "kelp/input/quill/quill.hpp"
#include "support/comparison.hpp"
#include "support/printing.hpp"

namespace kelp::input::quill {
namespace {

/// The processor time of this process, which other processes hardly lengthen.
template <typename Work>
double seconds_of(Work work) {
  const std::clock_t start = std::clock();
  work();
  return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

/// Measures `prepare(size)` and `prepare(2 * size)`, each of which gives a function to be run once.
/// Quadratic work takes four times as long each time; a disturbance does not come five times over.
template <typename Prepare>
void expect_linear(std::size_t size, const Prepare& prepare) {
  constexpr double bound = 3.0;
  constexpr int attempts = 5;
  double once = std::numeric_limits<double>::infinity();
  double twice = std::numeric_limits<double>::infinity();
  for (int attempt = 0; attempt < attempts; ++attempt) {
    once = std::min(once, seconds_of(prepare(size)));
    twice = std::min(twice, seconds_of(prepare(2 * size)));
    if (twice < bound * once) return;
  }
  ADD_FAILURE() << once << " s for " << size << ", but " << twice << " s for twice as much";
}

std::string repeated(std::string_view piece, std::size_t count) {
  std::string text;
  text.reserve(piece.size() * count);
  for (; count > 0; --count) text += piece;
  return text;
}

/// A text of a given size, and how large what was read from it says that it was.
struct Row {
  std::string name;
  std::size_t size;
  std::string (*text)(std::size_t size);
  std::size_t (*size_of)(const ParseResult& result);
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.name << " of size " << row.size; }

class Reading : public testing::TestWithParam<Row> {};

TEST_P(Reading, TakesTimeInProportionToTheText) {
  expect_linear(GetParam().size, [](std::size_t size) {
    return [size, text = GetParam().text(size)] {
      EXPECT_EQ(GetParam().size_of(parse_string(text)), size);
    };
  });
}

constexpr std::size_t mebibyte = std::size_t{1024} * 1024;

const Row line_rows[] = {
    {"AtomLines", 500000, [](std::size_t n) { return repeated("C 0.5 -1.25 3.125\n", n); },
     [](const ParseResult& result) { return result.input.geometry.atoms.size(); }},
    {"AtomLinesOfNoElement", 50000, [](std::size_t n) { return repeated("Xx 0 0 0\n", n); },
     [](const ParseResult& result) { return result.warnings.size(); }},
    {"BlankLines", 1000000, [](std::size_t n) { return repeated("\n", n) + "#"; },
     [](const ParseResult& result) {
       const std::string& warning = result.warnings.front();
       return std::stoul(warning.substr(5)) - 1;
     }},
    {"HeaderLines", 50000, [](std::size_t n) { return repeated("#opt(a=1, b)\n", n); },
     [](const ParseResult& result) { return result.input.commands.size(); }},
    {"ReferenceLines", 50000, [](std::size_t n) { return repeated("XYZ a.xyz\n\n", n); },
     [](const ParseResult& result) { return result.input.geometry.xyz_files.size(); }},
    {"PostLines", 100000, [](std::size_t n) { return "0 1\n" + repeated("B 1 2\n", n); },
     [](const ParseResult& result) { return result.input.post_commands.size(); }},
    {"MalformedPostLines", 50000, [](std::size_t n) { return "0 1\n" + repeated("B 1 x\n", n); },
     [](const ParseResult& result) { return result.warnings.size(); }},
};
INSTANTIATE_TEST_SUITE_P(ManyLines, Reading, testing::ValuesIn(line_rows),
                         [](const auto& row) { return row.param.name; });

const Row long_line_rows[] = {
    {"OneWord", 4 * mebibyte, [](std::size_t n) { return std::string(n, 'x'); },
     [](const ParseResult& result) { return result.input.post_commands.at(0).raw_text.size(); }},
    {"AFlag", 32 * mebibyte, [](std::size_t n) { return "#" + std::string(n, 'x'); },
     [](const ParseResult& result) { return result.input.commands.at(0).name.size(); }},
    {"AnAssignment", 32 * mebibyte,
     [](std::size_t n) { return "#a = '" + std::string(n, '=') + "'"; },
     [](const ParseResult& result) { return result.input.commands.at(0).value->size(); }},
    {"AQuotedParameter", 4 * mebibyte,
     [](std::size_t n) { return "#a(b='" + std::string(n, ',') + "')"; },
     [](const ParseResult& result) {
       return result.input.commands.at(0).parameters.at(0).value->size();
     }},
    {"AnUnclosedList", 4 * mebibyte, [](std::size_t n) { return "#a(" + std::string(n, '('); },
     [](const ParseResult& result) {
       return result.input.commands.at(0).parameters.at(0).name.size();
     }},
    {"APath", 4 * mebibyte, [](std::size_t n) { return "XYZ " + std::string(n, 'x'); },
     [](const ParseResult& result) { return result.input.geometry.xyz_files.at(0).size(); }},
    {"Blanks", 4 * mebibyte, [](std::size_t n) { return "POST" + std::string(n, ' ') + "x"; },
     [](const ParseResult& result) {
       return result.input.post_commands.at(0).raw_text.size() - 5;
     }},
    {"ParametersInOneList", 100000,
     [](std::size_t n) { return "#a(" + repeated("b=c, ", n) + ")"; },
     [](const ParseResult& result) { return result.input.commands.at(0).parameters.size(); }},
    {"EmptyParametersInOneList", 500000,
     [](std::size_t n) { return "#" + std::string(n, 'x') + "(" + std::string(n, ',') + ")"; },
     [](const ParseResult& result) { return result.input.commands.at(0).name.size(); }},
    {"WordsInOneLine", 200000, [](std::size_t n) { return "POST" + repeated(" x", n); },
     [](const ParseResult& result) {
       return (result.input.post_commands.at(0).post_file.size() + 1) / 2;
     }},
};
INSTANTIATE_TEST_SUITE_P(OneLine, Reading, testing::ValuesIn(long_line_rows),
                         [](const auto& row) { return row.param.name; });

TEST(Scale, WritingTakesTimeInProportionToTheNumberOfAtoms) {
  const std::string line = "C        0.500000     -1.250000      3.125000\n";
  expect_linear(100000, [&line](std::size_t size) {
    const std::vector<AtomRecord> records(size, AtomRecord{"C", 0.5, -1.25, 3.125});
    return [input = QuillInput({}, atoms(records)), text = repeated(line, size)] {
      EXPECT_TRUE(input.to_string() == text);
    };
  });
}

/// Commands of which every second one is called "opt", in one spelling or another.
QuillInput document_with_commands(std::size_t count) {
  QuillInput input;
  input.commands.reserve(count);
  for (std::size_t i = 0; i < count; i += 2) {
    input.commands.push_back(flag(i % 4 == 0 ? "opt" : "#OPT"));
    input.commands.push_back(flag("kept" + std::to_string(i)));
  }
  return input;
}

TEST(Scale, RemovingEveryCommandOfANameIsOnePass) {
  expect_linear(100000, [](std::size_t size) {
    return [input = document_with_commands(size)]() mutable {
      EXPECT_TRUE(input.remove_command("opt"));
    };
  });
}

TEST(Scale, RemovingEveryCommandOfANameKeepsTheOthersInOrder) {
  constexpr std::size_t count = 100000;
  QuillInput input = document_with_commands(count);
  QuillInput kept;
  for (std::size_t i = 0; i < count; i += 2)
    kept.commands.push_back(flag("kept" + std::to_string(i)));
  EXPECT_TRUE(input.remove_command("Opt"));
  EXPECT_TRUE(input == kept);
  EXPECT_FALSE(input.remove_command("Opt"));
  EXPECT_TRUE(input == kept);
}

}  // namespace
}  // namespace kelp::input::quill
