#include "lint/lint.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tools/lint/marked_text.hpp"

namespace kelp::input::quill::lint {

bool operator==(const TextPlace& left, const TextPlace& right) {
  return left.line == right.line && left.column == right.column;
}

void PrintTo(const TextPlace& place, std::ostream* out) {
  *out << place.line << ':' << place.column;
}

namespace {

std::vector<std::string> codes_of(const Findings& findings) {
  std::vector<std::string> codes;
  for (const Finding& finding : findings) codes.emplace_back(finding.code);
  return codes;
}

TEST(Places, CountLinesAndBytesFromOne) {
  const std::vector<LineRecord> lines = parse_lines("ab\r\n\n\xC3\xA9z").lines;
  EXPECT_EQ(place_of(0, lines), (TextPlace{1, 1}));
  EXPECT_EQ(place_of(1, lines), (TextPlace{1, 2}));
  EXPECT_EQ(place_of(3, lines), (TextPlace{1, 4}));
  EXPECT_EQ(place_of(4, lines), (TextPlace{2, 1}));
  EXPECT_EQ(place_of(5, lines), (TextPlace{3, 1}));
  EXPECT_EQ(place_of(7, lines), (TextPlace{3, 3}));
  EXPECT_EQ(place_of(8, lines), (TextPlace{3, 4}));
  EXPECT_EQ(place_of(0, {}), (TextPlace{1, 1}));
}

TEST(Findings, AreInTheOrderOfTheirPlaces) {
  EXPECT_EQ(marked_anew("#opt(a,,a) x\n#model = a\n#model = b\n0 0\nHe 0 0 0\nC 0\n"),
            "#opt(a,,a) x\n"
            "       < QL212 an entry of the list is empty\n"
            "        ^ QL211 the parameter 'a' was given before, and only the first one is found\n"
            "           ^ QL202 ignored trailing text after QUILL header command: 'x' is lost\n"
            "#model = a\n"
            "#model = b\n"
            "^^^^^^^^^^ QL210 'model' was assigned before, and only the first value counts\n"
            "0 0\n"
            "  ^ QL111 the multiplicity '0' is below 1\n"
            "He 0 0 0\n"
            "C 0\n"
            "  ^ QL303 the atom number '0' is below 1\n");
}

TEST(Findings, ThatAnotherOneExplainsAreLeftOut) {
  const lossless::ReadText read =
      lossless::read_text("#opt\n0 1\nH 0 0 0\nH 0 0 0.741\nB 1 \xC2\xA0x\n");
  EXPECT_THAT(codes_of(find_unexplained(read, Options())), testing::ElementsAre("QL004", "QL301"));
  EXPECT_THAT(codes_of(find_all(read, Options())), testing::ElementsAre("QL301"));
}

TEST(Findings, AboutWhatIsMissingAreNotExplainedByTheFirstLine) {
  const lossless::ReadText read = lossless::read_text("#opt(x='1)\n");
  EXPECT_THAT(codes_of(find_all(read, Options())), testing::ElementsAre("QL113", "QL214"));
}

TEST(Findings, OfAWholeTextLeaveOutAllOthers) {
  const lossless::ReadText read =
      lossless::read_text("\xEF\xBB\xBF#opt\n#model\r\n0 1\nHe 0 0 0\nC 0\n");
  EXPECT_THAT(codes_of(find_all(read, Options())), testing::ElementsAre("QL001"));
}

/// The codes and lines of findings, and after them how many more there are.
std::string listed(const FirstFindings& first, const std::vector<LineRecord>& lines) {
  std::string list;
  for (const Finding& finding : first.findings) {
    list += std::string(finding.code) + ":" +
            std::to_string(place_of(finding.range.offset, lines).line) + " ";
  }
  for (const auto& [code, count] : first.more)
    list += "+" + std::to_string(count) + " " + std::string(code) + " ";
  return list;
}

TEST(FirstFindings, AreThoseAtTheBeginningOfEachRuleAndTheOthersAreCounted) {
  const lossless::ReadText read = lossless::read_text(
      "#opt(a,,,,b)\n0 1\nHe 0 0 0\nC 0\nB 1 x\nC -1\nB 0 1\nB x 1\nC 5\nB y 1\nC 1\nB 2 2 2\n");
  EXPECT_EQ(listed(find_first(read, Options(), {100, 100}), read.lines),
            "QL212:1 QL212:1 QL212:1 QL303:4 QL301:5 QL303:6 QL303:7 QL301:8 QL305:9 QL301:10 "
            "QL302:12 ");
  EXPECT_EQ(listed(find_first(read, Options(), {3, 3}), read.lines),
            "QL212:1 QL212:1 QL212:1 QL303:4 QL301:5 QL303:6 QL303:7 QL301:8 QL305:9 QL301:10 "
            "QL302:12 ");
  EXPECT_EQ(listed(find_first(read, Options(), {2, 2}), read.lines),
            "QL212:1 QL212:1 QL303:4 QL301:5 QL303:6 QL301:8 QL305:9 QL302:12 "
            "+1 QL212 +1 QL301 +1 QL303 ");
  EXPECT_EQ(listed(find_first(read, Options(), {0, 0}), read.lines),
            "+3 QL212 +3 QL301 +1 QL302 +3 QL303 +1 QL305 ");
}

TEST(FirstFindings, AreNotThoseThatAFindingExplainsThatIsCountedAlone) {
  const lossless::ReadText read = lossless::read_text(
      "#opt\n0 1\nH 0 0 0\nH 0 0 0.741\nB 1 2\nB x \xC2\xA0\nB x \xC2\xA0\nA \xC2\xA0\n");
  EXPECT_EQ(listed(find_first(read, Options(), {1, 1}), read.lines), "QL301:6 QL004:8 +1 QL301 ");
}

TEST(FirstFindings, OfAWholeTextAreCountedToo) {
  const lossless::ReadText read = lossless::read_text("#opt\ra\n#b\rc\n0 1\nHe 0 0 0\n");
  EXPECT_EQ(listed(find_first(read, Options(), {1, 1}), read.lines), "QL002:1 +1 QL002 ");
  EXPECT_EQ(listed(find_first(read, Options(), {0, 0}), read.lines), "+2 QL002 ");
}

/// Whether the first finding can be mended, where a mend may have so many edits.
bool has_mend(const std::string& text, std::size_t most) {
  return find_first(lossless::read_text(text), Options(), {1, most})
      .findings.at(0)
      .mend.has_value();
}

TEST(FirstFindings, HaveNoMendOfMoreEdits) {
  for (const std::string text : {"#opt\r#a\r0 1\n", "#opt\n0 1\nHe 0 0 0\nHe 0 0 1,5\nHe 0 0 2,5\n",
                                 "#opt\n0 1\nHe 0 0 0\nC\xC2\xA0\xC2\xA0"
                                 "1\n"}) {
    EXPECT_TRUE(has_mend(text, 2)) << text;
    EXPECT_FALSE(has_mend(text, 1)) << text;
  }
}

TEST(Findings, NameTheOtherPlace) {
  const std::string text = "#opt(a, b, a)\n0 1\nHe 0 0 0\n";
  const lossless::ReadText read = lossless::read_text(text);
  const Findings findings = find_all(read, Options());
  ASSERT_EQ(findings.size(), 1U);
  ASSERT_EQ(findings[0].related.size(), 1U);
  EXPECT_EQ(findings[0].range, (Range{11, 1}));
  EXPECT_EQ(findings[0].related[0].range, (Range{5, 1}));
  EXPECT_EQ(findings[0].related[0].role, "the one that counts");
}

/// The place of the one related line of the one finding with the code.
std::string related_of(const std::string& text, std::string_view code) {
  const lossless::ReadText read = lossless::read_text(text);
  for (const Finding& finding : find_all(read, Options())) {
    if (finding.code != code || finding.related.size() != 1) continue;
    const RelatedPlace& place = finding.related.front();
    return text.substr(place.range.offset, place.range.length) + ": " + std::string(place.role);
  }
  return {};
}

TEST(Findings, NameTheLineBecauseOfWhichAnotherOneIsText) {
  EXPECT_EQ(related_of("#opt\n\n 0 1\nHe 0 0 0\n#freq\n", "QL107"),
            "0 1: the line that ended the header");
  EXPECT_EQ(related_of("#opt\n0 1\nHe 0 0 0\nC 1\nXYZ a\n", "QL108"),
            "C 1: the line that ended the coordinates");
  EXPECT_EQ(related_of("#opt\n0 1\nHe 0 0 0\nXYZ a\n", "QL108"), "");
  EXPECT_EQ(related_of("#irc\nXYZTRAJ a\nXYZ b\n", "QL405"), "XYZTRAJ a: the trajectory");
  EXPECT_EQ(related_of("#sp\n0 1\nHe 0 0 0\nHe 0 0 0\n", "QL602"), "He 0 0 0: the other atom");
}

TEST(KnownNames, AreThoseOfTheProjectAndOfOtherInputs) {
  const lossless::ReadText read =
      lossless::read_text("#opt\n#solvnt = water\n#grids = fine\n0 1\nHe 0 0 0\n");
  Options options;
  EXPECT_THAT(codes_of(find_all(read, options)), testing::IsEmpty());
  options.known_commands = {"solvent"};
  EXPECT_THAT(codes_of(find_all(read, options)), testing::ElementsAre("QL207"));
  std::vector<std::string> others = {"grid"};
  options.other_names = &others;
  EXPECT_THAT(codes_of(find_all(read, options)), testing::ElementsAre("QL207", "QL207"));
  others = {"grid", "grids", "solvnt"};
  EXPECT_THAT(codes_of(find_all(read, options)), testing::IsEmpty());
  options.known_commands = {"Solvnt", "solvent", "GRIDS"};
  EXPECT_THAT(codes_of(find_all(read, options)), testing::IsEmpty());
}

TEST(LargestChange, DecidesWhichRuleApplies) {
  const lossless::ReadText read = lossless::read_text("#opt\n0 1\nHe 0 0 0.1234564\n");
  Options options;
  EXPECT_THAT(codes_of(find_all(read, options)), testing::ElementsAre("QL504"));
  options.max_change = 1e-7;
  EXPECT_THAT(codes_of(find_all(read, options)), testing::ElementsAre("QL502"));
}

}  // namespace

}  // namespace kelp::input::quill::lint
