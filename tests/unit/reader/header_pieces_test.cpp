#include "reader/header_pieces.hpp"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

namespace kelp::input::quill {
namespace {

using namespace std::string_literals;

struct Row {
  std::string name;
  std::string line;
  HeaderCommandKind kind;
  std::string command_name;
  std::string value = {};
  std::string list = {};
  std::string trailing = {};
  bool is_closed = true;
};

void PrintTo(const Row& row, std::ostream* out) { *out << testing::PrintToString(row.line); }

class HeaderLinePieces : public testing::TestWithParam<Row> {};

TEST_P(HeaderLinePieces, AreFound) {
  const HeaderPieces pieces = find_header_pieces(GetParam().line);
  EXPECT_EQ(pieces.kind, GetParam().kind);
  EXPECT_EQ(pieces.name, GetParam().command_name);
  EXPECT_EQ(pieces.value, GetParam().value);
  EXPECT_EQ(pieces.list, GetParam().list);
  EXPECT_EQ(pieces.trailing, GetParam().trailing);
  EXPECT_EQ(pieces.is_closed, GetParam().is_closed);
}

constexpr HeaderCommandKind flag = HeaderCommandKind::Flag;
constexpr HeaderCommandKind assignment = HeaderCommandKind::Assignment;
constexpr HeaderCommandKind list = HeaderCommandKind::ParameterList;

const Row rows[] = {
    {"Nothing", "", flag, ""},
    {"AHashAlone", " # ", flag, ""},
    {"AFlag", " # freq opt ", flag, "freq opt"},
    {"OneHashIsTakenOff", "##freq", flag, "#freq"},
    {"AnAssignment", "# model  = 'b3 lyp' ", assignment, "model  ", " 'b3 lyp'"},
    {"AnAssignmentOfNothing", "#a=", assignment, "a"},
    {"AnAssignmentOfAParenthesis", "#a=b(c) d", assignment, "a", "b(c) d"},
    {"AParameterList", "#opt (a=1, b)", list, "opt ", "", "a=1, b"},
    {"AnEmptyList", "#opt()", list, "opt"},
    {"NestedParentheses", "#opt(a=(1)) x", list, "opt", "", "a=(1)", " x"},
    {"TrailingText", "#opt(a) and more ", list, "opt", "", "a", " and more"},
    {"AMissingParenthesis", "#opt(a=1", list, "opt", "", "a=1", "", false},
    {"AParenthesisBeforeTheList", "#opt)x(y", list, "opt)x", "", "y", "", false},
    {"NoName", "#(a)", list, "", "", "a"},
    {"NulBytes", "#\0(\0)\0"s, list, "\0"s, "", "\0"s, "\0"s},
};

INSTANTIATE_TEST_SUITE_P(Table, HeaderLinePieces, testing::ValuesIn(rows),
                         [](const auto& row) { return row.param.name; });

TEST(HeaderLinePieces, AreViewsOfTheLine) {
  const std::string line = "  #opt(a=1) more";
  const HeaderPieces pieces = find_header_pieces(line);
  EXPECT_EQ(pieces.name.data() - line.data(), 3);
  EXPECT_EQ(pieces.list.data() - line.data(), 7);
  EXPECT_EQ(pieces.trailing.data() - line.data(), 11);
  EXPECT_EQ(find_header_pieces("a=b").value.size(), 1U);
}

/// The entries of a list, names and values as they are.
std::vector<std::pair<std::string, std::optional<std::string>>> entries_of(std::string_view text) {
  std::vector<std::pair<std::string, std::optional<std::string>>> found;
  for (ParameterEntries entries(text); !entries.at_end();) {
    const ParameterPieces entry = entries.next();
    found.emplace_back(entry.name, entry.value);
  }
  return found;
}

TEST(ParameterListEntries, AreAllThereIs) {
  using Entries = std::vector<std::pair<std::string, std::optional<std::string>>>;
  const std::optional<std::string> none;
  EXPECT_EQ(entries_of(""), (Entries{{"", none}}));
  EXPECT_EQ(entries_of(","), (Entries{{"", none}, {"", none}}));
  EXPECT_EQ(entries_of("a, b = '1,2' ,=c,d="),
            (Entries{{"a", none}, {" b ", " '1,2' "}, {"", "c"}, {"d", ""}}));
  EXPECT_EQ(entries_of("'a,b=c"), (Entries{{"'a,b", "c"}}));
}

struct LossRow {
  std::string name;
  std::string line;
  bool says_more;
};

void PrintTo(const LossRow& row, std::ostream* out) { *out << testing::PrintToString(row.line); }

class TextOfAHeaderLine : public testing::TestWithParam<LossRow> {};

TEST_P(TextOfAHeaderLine, SaysMoreThanItsCommand) {
  EXPECT_EQ(says_more_than_its_command(GetParam().line), GetParam().says_more);
}

const LossRow losses[] = {
    {"NotAFlag", "# freq opt", false},
    {"NotAnAssignment", "#a = (b) c", false},
    {"NotAList", "# opt ( a = '1' , , b ) ", false},
    {"NotAMissingParenthesis", "#opt(a", false},
    {"NotACommandWithoutAName", "# = 5", false},
    {"NotAListWithoutAName", "#(a)", false},
    {"WithTrailingText", "#opt(a) b", true},
    {"WithAParenthesisAfterTheList", "#opt(a) (b) c", true},
    {"WithAParenthesisThatOpensAfterTheList", "#opt(a) (b", true},
    {"WithNothingButAParenthesisAfterTheList", "#opt(a)(", true},
    {"NotAParenthesisThatClosesAfterTheList", "#opt(a))", false},
    {"WithTrailingTextThatIsInTheListToo", "#opt(abc) abc", true},
    {"WithATrailingComma", "#opt(a),", true},
    {"WithAValueWithoutAName", "#opt(a, =2, b)", true},
    {"WithAnEmptyValueWithoutAName", "#opt(=)", true},
    {"WithABlankForAName", "#opt(a, \t=2)", true},
};

INSTANTIATE_TEST_SUITE_P(Table, TextOfAHeaderLine, testing::ValuesIn(losses),
                         [](const auto& row) { return row.param.name; });

TEST(ATrimmedView, IsAPartOfTheText) {
  const std::string text = " \ta b\r\n";
  EXPECT_EQ(trimmed_view(text), "a b");
  EXPECT_EQ(trimmed_view(text).data() - text.data(), 2);
  EXPECT_EQ(trimmed_view("aba"), "aba");
  EXPECT_EQ(trimmed_view(" \n"), "");
  EXPECT_EQ(trimmed_view(""), "");
}

}  // namespace
}  // namespace kelp::input::quill
