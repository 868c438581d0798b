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
