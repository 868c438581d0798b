#include "web/answers.hpp"

#include <cstring>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

namespace {

void read(std::string_view text) {
  std::memcpy(web_room(text.size()), text.data(), text.size());
  web_read();
}

std::string answer(void (*make)()) {
  make();
  return {web_answer(), web_answer_size()};
}

/// A decimal comma ends the atoms, so the rest of the line is dropped; a constraint remains.
constexpr std::string_view with_a_comma =
    "#opt\n"
    "\n"
    "0 1\n"
    "O 0 0 0,1\n"
    "H 0.76 0 -0.5\n"
    "B 1 2\n";

struct Row {
  std::string_view name;
  std::string_view text;
  std::string answer;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }

std::string name_of(const testing::TestParamInfo<Row>& row) { return std::string(row.param.name); }

class Account : public testing::TestWithParam<Row> {};

TEST_P(Account, IsWrittenAsJson) {
  read(GetParam().text);
  EXPECT_EQ(answer(web_account), GetParam().answer);
}

const Row accounts[] = {
    {"OfAnEmptyText", "", R"({
  "lines": [],
  "warnings": [
    {"line": null, "message": "No QUILL coordinate section found"}
  ],
  "losses": []
}
)"},
    {"OfEveryRole", "#opt\n\n0 1\r\nH 0 0 0\nB 1 2\n#late\n",
     R"({
  "lines": [
    {"role": "command", "index": 0, "words": "command 1", "offset": 0, "length": 4},
    {"role": "blank", "index": null, "words": "blank", "offset": 5, "length": 0},
    {"role": "charge and multiplicity", "index": null, "words": "charge and multiplicity", "offset": 6, "length": 3},
    {"role": "atom", "index": 0, "words": "atom 1", "offset": 11, "length": 7},
    {"role": "post-processing", "index": 0, "words": "bond constraint", "offset": 19, "length": 5},
    {"role": "post-processing", "index": 1, "words": "raw text", "offset": 25, "length": 5}
  ],
  "warnings": [],
  "losses": []
}
)"},
    {"OfReferences", "#sp\nXYZ a.xyz\nXYZ\n", R"({
  "lines": [
    {"role": "command", "index": 0, "words": "command 1", "offset": 0, "length": 3},
    {"role": "reference", "index": 0, "words": "XYZ reference 1", "offset": 4, "length": 9},
    {"role": "reference", "index": null, "words": "XYZ reference without a path", "offset": 14, "length": 3}
  ],
  "warnings": [
    {"line": 3, "message": "XYZ reference has no file path"}
  ],
  "losses": [
    {"line": 3, "message": "line 3 would be left out: 'XYZ'"}
  ]
}
)"},
    {"OfATrajectory", "#neb\nXYZTRAJ path.xyz", R"({
  "lines": [
    {"role": "command", "index": 0, "words": "command 1", "offset": 0, "length": 4},
    {"role": "trajectory", "index": 0, "words": "trajectory reference", "offset": 5, "length": 16}
  ],
  "warnings": [],
  "losses": []
}
)"},
    {"OfATextThatIsNoInput", "Dear colleague,\n", R"({
  "lines": [
    {"role": "post-processing", "index": 0, "words": "raw text", "offset": 0, "length": 15}
  ],
  "warnings": [
    {"line": null, "message": "No QUILL coordinate section found"}
  ],
  "losses": [
    {"line": null, "message": "the text does not look like a QUILL input: it has no header line and no coordinates"}
  ]
}
)"},
};
INSTANTIATE_TEST_SUITE_P(Table, Account, testing::ValuesIn(accounts), name_of);

class Findings : public testing::TestWithParam<Row> {};

TEST_P(Findings, AreThoseOfTheLinter) {
  read(GetParam().text);
  EXPECT_EQ(answer(web_findings), GetParam().answer);
}

const Row findings[] = {
    {"NoneInAGoodText", "#sp\n\n0 1\nHe 0.000000 0.000000 0.000000\n",
     R"({"file": "input", "findings": [], "more": {}}
)"},
    {"AMendThatIsSafe", with_a_comma,
     R"({"file": "input", "findings": [{"code": "QL104", "severity": "error", "group": "geometry", "line": 4, "column": 7, "offset": 16, "length": 3, "message": "no atoms are read because of this line: '0,1' is not a number; one further line that looks like an atom is kept as raw text", "advice": "write a symbol and three numbers with decimal points", "facts": {"atoms": 0, "lost": 1, "word": "0,1"}, "related": [], "fix": {"safe": true, "edits": [{"offset": 17, "length": 1, "text": "."}]}}], "more": {}}
)"},
};
INSTANTIATE_TEST_SUITE_P(Table, Findings, testing::ValuesIn(findings), name_of);

TEST(Answers, HoldTheCanonicalTextAndWhatItChanges) {
  read("#opt\n0 1\nhe 0 0 0\n");
  EXPECT_EQ(answer(web_canonical_text), R"(#opt

0 1
He       0.000000      0.000000      0.000000
)");
  EXPECT_EQ(answer(web_difference), R"(--- input
+++ input
@@ -1,3 +1,4 @@
 #opt
+
 0 1
-he 0 0 0
+He       0.000000      0.000000      0.000000
)");
}

TEST(Answers, HoldNoDifferenceForACanonicalText) {
  read("#opt\n");
  EXPECT_EQ(answer(web_difference), "");
}

TEST(Answers, HoldTheDocument) {
  read("#opt\n");
  EXPECT_EQ(answer(web_document), R"({
  "commands": [
    {"name": "opt", "kind": "flag"}
  ],
  "geometry": {
    "kind": "none"
  },
  "post_commands": []
}
)");
}

TEST(Answers, HoldTheTextAfterItsSafeMends) {
  read(with_a_comma);
  EXPECT_EQ(answer(web_mended_text), "#opt\n\n0 1\nO 0 0 0.1\nH 0.76 0 -0.5\nB 1 2\n");
}

TEST(Answers, TellOfAtMostTwentyLosses) {
  std::string text = "XYZ a.xyz\n";
  for (int i = 0; i < 21; ++i) text += "XYZ\n";
  read(text);
  const std::string account = answer(web_account);
  EXPECT_NE(account.find("line 21 would be left out"), std::string::npos);
  EXPECT_EQ(account.find("line 22 would be left out"), std::string::npos);
}

TEST(Answers, HoldTheFirstThousandFindingsOfARuleAndTheNumberOfTheOthers) {
  std::string text = "#sp\n\n0 1\nH 0 0 0\n";
  for (int i = 0; i < 1003; ++i) text += "B 9 9\n";
  read(text);
  const std::string found = answer(web_findings);
  const std::string_view more = R"("more": {"QL304": 3, "QL305": 1006}}
)";
  EXPECT_EQ(found.substr(found.rfind(R"("more")")), more);
}

TEST(Answers, AreAboutTheLastText) {
  read("#opt\n");
  read("#freq\n");
  EXPECT_EQ(answer(web_canonical_text), "#freq\n");
}

TEST(Answers, KeepEveryByteOfAText) {
  const std::string_view text("X\0\xff", 3);
  read(text);
  EXPECT_EQ(answer(web_mended_text), text);
}

}  // namespace
