#include "quill-inp/summary/input_difference.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>

#include "kelp/input/quill/reader.hpp"

namespace kelp::input::quill::tool {
namespace {

std::string lines_of(std::string_view before, std::string_view after) {
  const InputDifferences differences =
      find_differences(parse_string(before).input, parse_string(after).input);
  const std::string text = difference_text("a", "b", differences);
  return text.substr(std::min<std::size_t>(text.size(), std::string("--- a\n+++ b\n").size()));
}

struct Row {
  std::string_view name;
  std::string before;
  std::string after;
  std::string lines;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }

const Row rows[] = {
    {"TheSame", "#opt(a=1, b)\n0 1\nHe 0 0 0\nB 1 2\n", "#opt(a=1, b)\n0 1\nHe 0 0 0\nB 1 2\n", ""},
    {"Layout", "#opt(a='1', b)\n\n0 1\nhe 0 0 -0\nb 1 2\n", "# OPT ( A=1,b )\n0 1\nHe 0 0 0\nB 1 2",
     ""},
    {"AssumedCharge", "#sp\nHe 0 0 0\n", "#sp\n0 1\nHe 0 0 0\n", ""},
    {"NaN", "0 1\nHe 0 0 nan\n", "0 1\nHe 0 0 nan\n", ""},
    {"CommandInFront", "#opt\n#sp\n", "#freq\n#opt\n#sp\n", "+ #freq\n"},
    {"CommandRemoved", "#freq\n#opt\n#sp\n", "#opt\n#sp\n", "- #freq\n"},
    {"SecondOfTheName", "#a=1\n#a=2\n", "#a=1\n#a=3\n#a=4\n", "! #a = 2 -> #a = 3\n+ #a = 4\n"},
    {"KindOfACommand", "#a\n", "#a(b)\n", "! #a -> #a(b)\n"},
    {"OrderOfCommands", "#a\n#b\n#c\n", "#c\n#a\n#b\n", "! the order of the commands\n"},
    {"OrderAndOneRemoved", "#a\n#b\n#c\n", "#c\n#b\n", "- #a\n! the order of the commands\n"},
    {"Parameters", "#opt(a=1, b, c=x, d)\n", "#opt(a=2, c, d, e=5)\n",
     "! #opt: a=1 -> a=2\n- #opt: b\n! #opt: c=x -> c\n+ #opt: e=5\n"},
    {"AParameterWithAHash", "#opt(#x=1)\n", "#opt(x=1)\n", "- #opt: #x=1\n+ #opt: x=1\n"},
    {"ACommandWithAHash", "##opt\n", "#opt\n", ""},
    {"OrderOfParameters", "#opt(a, b)\n", "#opt(b, a)\n", "! #opt: the order of the parameters\n"},
    {"AValueThatIsEmpty", "#opt(a)\n", "#opt(a='')\n", "! #opt: a -> a=\n"},
    {"ChargeAndMultiplicity", "#sp\n0 1\nHe 0 0 0\n", "#sp\n-1 2\nHe 0 0 0\n",
     "! charge: 0 -> -1\n! multiplicity: 1 -> 2\n"},
    {"KindOfGeometry", "#sp\n0 1\nXYZ a.xyz\n", "#sp\n0 1\nXYZTRAJ a.xyz\n",
     "! coordinates: xyz_file -> xyz_trajectory\n"},
    {"Paths", "#sp\n0 1\nXYZ a.xyz\nXYZ b.xyz\n", "#sp\n0 1\nXYZ c.xyz\n",
     "! path 1: a.xyz -> c.xyz\n- path 2: b.xyz\n"},
    {"OnePathMore", "#sp\n0 1\nXYZ a.xyz\n", "#sp\n0 1\nXYZ a.xyz\nXYZ b.xyz\n",
     "+ path 2: b.xyz\n"},
    {"MovedAtoms", "0 1\nO 0 0 0\nH 0 0 1\nH 1 0 0\n", "0 1\nO 0 0 0\nH 3 4 1\nH 1 0 0.0125\n",
     "! atom 2 moved by 5\n! atom 3 moved by 0.013\n"},
    {"ATinyMove", "0 1\nHe 0 0 0\n", "0 1\nHe 0 0 1e-300\n", "! atom 1 moved by 1e-300\n"},
    {"ToInfinity", "0 1\nHe 0 0 0\nHe 0 0 9\n", "0 1\nHe 0 0 inf\nHe 0 nan 9\n",
     "! atom 1 moved by inf\n! atom 2 moved by inf\n"},
    {"FromOneInfinityToTheOther", "0 1\nHe inf 0 0\nHe inf 0 9\n", "0 1\nHe -inf 0 0\nHe inf 0 5\n",
     "! atom 1 moved by inf\n! atom 2 moved by 4\n"},
    {"AnotherElement", "0 1\nO 0 0 0\n", "0 1\nS 0 1 0\n",
     "! atom 1: O -> S\n! atom 1 moved by 1\n"},
    {"OneAtomMore", "0 1\nO 0 0 0\n", "0 1\nO 0 0 0\nH 0 0 .1234567\n",
     "+ atom 2: H 0 0 0.1234567\n"},
    {"OneAtomLess", "0 1\nO 0 0 0\nH 0 0 1\n", "0 1\nO 0 0 0\n", "- atom 2: H 0 0 1\n"},
    {"PostLines", "0 1\nHe 0 0 0\nB 1 2\nA 1 2 3\nPRINT x\n",
     "0 1\nHe 0 0 0\nD 1 2 3 4\nB 1 2\nPRINT x\nPRINT y\n", "+ D 1 2 3 4\n- A 1 2 3\n+ PRINT y\n"},
    {"ScanValues", "0 1\nHe 0 0 0\nB 1 2\nS 1 2 1.5 10\n",
     "0 1\nHe 0 0 0\nB 1 2\nS 1 2 1.5000001 10\n", "- S 1 2 1.5 10\n+ S 1 2 1.5000001 10\n"},
    {"WhatATerminalWouldObey", "#a=\x1b[2J\n", "#sp\n", "- #a = \\x1b[2J\n+ #sp\n"},
};

class Differences : public testing::TestWithParam<Row> {};

TEST_P(Differences, Are) {
  EXPECT_EQ(lines_of(GetParam().before, GetParam().after), GetParam().lines);
}

INSTANTIATE_TEST_SUITE_P(Table, Differences, testing::ValuesIn(rows),
                         [](const auto& row) { return std::string(row.param.name); });

std::string bonds(std::size_t count) {
  std::string text = "0 1\nHe 0 0 0\n";
  for (std::size_t i = 0; i < count; ++i) text += "B 1 " + std::to_string(i + 1) + "\n";
  return text;
}

TEST(Differences, AreAllKeptUpToTheLimit) {
  const std::string lines = lines_of(bonds(0), bonds(most_differences));
  EXPECT_EQ(std::count(lines.begin(), lines.end(), '\n'), 1000);
  EXPECT_EQ(lines.substr(lines.rfind('+')), "+ B 1 1000\n");
}

TEST(Differences, AreCountedBeyondTheLimit) {
  const std::string one = lines_of(bonds(0), bonds(most_differences + 1));
  EXPECT_EQ(one.substr(one.rfind("...")), "... and 1 more difference\n");
  const std::string two = lines_of(bonds(0), bonds(most_differences + 2));
  EXPECT_EQ(two.substr(two.rfind("...")), "... and 2 more differences\n");
}

TEST(Differences, HaveANameForEveryKindInJson) {
  const QuillInput before = parse_string("#a\n#b(c, d)\n#e\n0 1\nXYZ p\nB 1 2\n").input;
  const QuillInput after = parse_string("#e\n#b(d, c, f)\n#g\n1 2\nHe 0 0 0\nB 1 3\n").input;
  std::string json;
  write_difference_json("x", "y", find_differences(before, after),
                        [&](std::string_view piece) { json += piece; });
  EXPECT_EQ(json,
            R"({"before": "x", "after": "y", "count": 12, "differences": [)"
            R"({"kind": "command", "before": "#a"}, )"
            R"({"kind": "parameter", "command": "b", "after": "f"}, )"
            R"({"kind": "parameter_order", "command": "b"}, )"
            R"({"kind": "command", "after": "#g"}, {"kind": "command_order"}, )"
            R"({"kind": "charge", "before": "0", "after": "1"}, )"
            R"({"kind": "multiplicity", "before": "1", "after": "2"}, )"
            R"({"kind": "geometry", "before": "xyz_file", "after": "atoms"}, )"
            R"({"kind": "atom", "number": 1, "after": "He 0 0 0"}, )"
            R"({"kind": "path", "number": 1, "before": "p"}, )"
            R"({"kind": "post_line", "before": "B 1 2"}, {"kind": "post_line", "after": "B 1 3"}]})"
            "\n");
}

TEST(Differences, OfAnAtomAreItsElementAndItsMoveInJson) {
  std::string json;
  write_difference_json("x", "y",
                        find_differences(parse_string("0 1\nO 0 0 0\n").input,
                                         parse_string("0 1\nS 0 0 0.25\n").input),
                        [&](std::string_view piece) { json += piece; });
  EXPECT_EQ(json, R"({"before": "x", "after": "y", "count": 2, "differences": [)"
                  R"({"kind": "element", "number": 1, "before": "O", "after": "S"}, )"
                  R"({"kind": "position", "number": 1, "distance": 0.25}]})"
                  "\n");
}

}  // namespace
}  // namespace kelp::input::quill::tool
