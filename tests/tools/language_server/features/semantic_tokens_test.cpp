#include <gtest/gtest.h>

#include "tools/language_server/support/marks.hpp"

namespace kelp::input::quill::language_server {

namespace {

/// Shows tokens as "line:character+length type", one after another, from the packed numbers.
std::string shown(const Json& tokens) {
  const Json options = semantic_tokens_options();
  const Json& types = options["legend"]["tokenTypes"];
  const Json& data = tokens["data"];
  EXPECT_EQ(data.size() % 5, 0U);
  std::string text;
  std::size_t line = 0;
  std::size_t character = 0;
  for (std::size_t i = 0; i + 5 <= data.size(); i += 5) {
    const auto lines = data[i].get<std::size_t>();
    character = data[i + 1].get<std::size_t>() + (lines == 0 ? character : 0);
    line += lines;
    text += std::to_string(line) + ":" + std::to_string(character) + "+" + data[i + 2].dump() +
            " " + types[data[i + 3].get<std::size_t>()].get<std::string>() +
            (data[i + 4] == 1 ? " deprecated" : "") + "\n";
  }
  return text;
}

struct Row {
  std::string name;
  std::string text;
  std::string tokens;
};

class SemanticTokens : public testing::TestWithParam<Row> {};

TEST_P(SemanticTokens, AreThePiecesOfLines) {
  EXPECT_EQ(shown(semantic_tokens(snapshot_of(GetParam().text), World().surroundings())),
            GetParam().tokens);
}

const Row rows[] = {
    {"NoneInAnEmptyText", "", ""},
    {"ATaskAndAnotherCommand", "#OPT\n # grid\n", "0:0+4 keyword\n1:1+6 function\n"},
    {"AnAssignment", "#model = small organic\n", "0:0+6 function\n0:9+13 string\n"},
    {"AnAssignedNumber", "#seed=-1.5\n", "0:0+5 function\n0:6+4 number\n"},
    {"Parameters", "#opt( maxiter = 50,, tight,basis='a, b', c= )\n",
     "0:0+4 keyword\n0:6+7 parameter\n0:16+2 number\n0:21+5 parameter\n0:27+5 parameter\n"
     "0:33+6 string\n0:41+1 parameter\n"},
    {"WhatIsLostOfAList", "#opt(=5, a) #freq\n",
     "0:0+4 keyword\n0:6+1 comment deprecated\n0:9+1 parameter\n0:12+5 comment deprecated\n"},
    {"ACommandWithoutAName", "#\n#=a\n", "0:0+1 function\n1:0+1 function\n1:2+1 string\n"},
    {"ChargeAndAtoms", "-1 2\n Cl 0 0\t1.5D0\n",
     "0:0+2 number\n0:3+1 number\n1:1+2 type\n1:4+1 number\n1:6+1 number\n1:8+5 number\n"},
    {"References", "xyz  my file.xyz \nXYZ\n", "0:0+3 keyword\n0:5+11 string\n1:0+3 keyword\n"},
    {"ATrajectory", "XYZTRAJ a.xyz\n", "0:0+7 keyword\n0:8+5 string\n"},
    {"AConstraint", "XYZ\nb 1 22\n",
     "0:0+3 keyword\n1:0+1 keyword\n1:2+1 variable\n1:4+2 variable\n"},
    {"AScan", "XYZ\nS 1 2 3 1.5 10\n",
     "0:0+3 keyword\n1:0+1 keyword\n1:2+1 variable\n1:4+1 variable\n1:6+1 variable\n"
     "1:8+3 number\n1:12+2 number\n"},
    {"APostFile", "XYZ\nPOST a b\n", "0:0+3 keyword\n1:0+4 keyword\n1:5+3 string\n"},
    {"RawTextAndADroppedLine", "XYZ\n please call\nB 1 x\n",
     "0:0+3 keyword\n1:1+11 comment\n2:0+5 comment deprecated\n"},
    {"CharactersOutsideAscii", "#model=\xc3\xa9\xf0\x9f\x98\x80!\n#opt(\xc3\xa9=1)\n",
     "0:0+6 function\n0:7+4 string\n1:0+4 keyword\n1:5+1 parameter\n1:7+1 number\n"},
    {"ALoneCarriageReturnInATokenMakesTwo", "XYZ a\rb.xyz\n",
     "0:0+3 keyword\n0:4+1 string\n1:0+5 string\n"},
};

INSTANTIATE_TEST_SUITE_P(Table, SemanticTokens, testing::ValuesIn(rows),
                         [](const auto& row) { return row.param.name; });

TEST(SemanticTokens, CountInTheUnitsOfTheClient) {
  const Snapshot snapshot = snapshot_of("#\xc3\xa9(\xf0\x9f\x98\x80)\n", PositionEncoding::Utf8);
  EXPECT_EQ(shown(semantic_tokens(snapshot, World().surroundings())),
            "0:0+3 function\n0:4+4 parameter\n");
}

TEST(SemanticTokens, OfARangeAreThoseOfItsLines) {
  const MarkedSource source = without_marks("#opt\n#f[[req\n0 ]]1\nO 0 0 0\n");
  EXPECT_EQ(shown(semantic_tokens_of_range(snapshot_of(source.text), source.ranges.front(),
                                           World().surroundings())),
            "1:0+5 keyword\n2:0+1 number\n2:2+1 number\n");
}

}  // namespace

}  // namespace kelp::input::quill::language_server
