#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "support/temporary_folder.hpp"
#include "tools/language_server/support/marks.hpp"

namespace kelp::input::quill::language_server {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The text that each offer gives, after the place where it begins.
std::vector<std::string> offers_at(std::string_view marked, const World& world) {
  const MarkedSource source = without_marks(marked);
  const Snapshot snapshot = snapshot_of(source.text);
  const Json answer = completion(snapshot, source.cursor, world.surroundings());
  EXPECT_EQ(answer["isIncomplete"], false);
  std::vector<std::string> offers;
  for (const Json& item : answer["items"]) {
    const Json& edit = item["textEdit"];
    EXPECT_EQ(read_range(edit["range"]).end, snapshot.position_of(source.cursor));
    const lint::Range range = snapshot.range_of(read_range(edit["range"]));
    offers.push_back(std::to_string(range.length) + edit["newText"].get<std::string>());
  }
  return offers;
}

/// How many offers there are of each kind: of elements, of references and of other lines.
std::string kinds_at(std::string_view marked) {
  std::string kinds;
  for (const std::string& offer : offers_at(marked, World())) {
    const std::string text = offer.substr(1);
    if (text == "Og") kinds += "element ";
    if (text == "XYZ ") kinds += "reference ";
    if (text == "POST ") kinds += "post ";
  }
  return kinds;
}

struct Row {
  std::string name;
  std::string marked;
  std::string kinds;
};

class FirstWords : public testing::TestWithParam<Row> {};

TEST_P(FirstWords, AreThoseThatCanBeginTheLine) {
  EXPECT_EQ(kinds_at(GetParam().marked), GetParam().kinds);
}

const Row rows[] = {
    {"InAnEmptyText", "^", "reference post element "},
    {"AfterTheHeader", "#opt\n^", "reference post element "},
    {"AfterTheCharge", "#opt\n0 1\n\n H^\n", "reference post element "},
    {"AfterAnAtom", "0 1\nO 0 0 0\n^", "post element "},
    {"AfterAReference", "XYZ a.xyz\n^", "reference post "},
    {"AfterATrajectory", "XYZTRAJ a.xyz\n^", "post "},
    {"AfterAPostProcessingLine", "O 0 0 0\nC 1\n^", "post "},
    {"AfterADroppedLine", "XYZ a.xyz\nC x\n^", "post "},
    {"BeforeAPostProcessingLine", "O 0 0 0\n^\nC 1\n", "post element "},
    {"NotAfterAFirstWord", "O 0 0 0\nH ^", ""},
    {"NotInASecondWord", "O 0 0 0\nH 0^", ""},
    {"AfterACarriageReturnAlone", "O 0 0 0\n\rH^", "post element "},
    {"NotAfterTheLineOfAnAtomAndACarriageReturnAlone", "O 0 0 0\rH^", ""},
};

INSTANTIATE_TEST_SUITE_P(Table, FirstWords, testing::ValuesIn(rows),
                         [](const auto& row) { return row.param.name; });

TEST(Completion, OffersLinesAsSnippets) {
  World world;
  world.client.has_snippets = true;
  EXPECT_THAT(
      offers_at("XYZTRAJ a.xyz\n b^", world),
      ElementsAre("1C ${1:i}", "1B ${1:i} ${2:j}", "1A ${1:i} ${2:j} ${3:k}",
                  "1D ${1:i} ${2:j} ${3:k} ${4:l}", "1S ${1:i} ${2:j} ${3:value} ${4:steps}",
                  "1S ${1:i} ${2:j} ${3:k} ${4:value} ${5:steps}",
                  "1S ${1:i} ${2:j} ${3:k} ${4:l} ${5:value} ${6:steps}", "1POST ${1:path}"));
}

TEST(Completion, SaysWhatALineIsFor) {
  World world;
  world.client.has_snippets = true;
  const Json items = completion(snapshot_of("XYZTRAJ a.xyz\n"), 14, world.surroundings())["items"];
  EXPECT_EQ(items[1]["label"], "B i j");
  EXPECT_EQ(items[1]["detail"], "bond constraint");
  EXPECT_EQ(items[1]["documentation"], "Keep the distance of two atoms fixed");
  EXPECT_EQ(items[1]["filterText"], "B");
  EXPECT_EQ(items[1]["insertTextFormat"], 2);
  EXPECT_EQ(items[1]["kind"], 15);
  EXPECT_EQ(items[1]["sortText"], "00001");
}

TEST(Completion, OffersKeywordsToAClientWithoutSnippets) {
  EXPECT_THAT(offers_at("XYZTRAJ a.xyz\n^", World()),
              ElementsAre("0C ", "0B ", "0A ", "0D ", "0S ", "0POST "));
}

TEST(Completion, OffersEveryElementInTheOrderOfTheirNumbers) {
  const std::vector<std::string> offers = offers_at("O 0 0 0\n^", World());
  ASSERT_EQ(offers.size(), 6U + 118U);
  EXPECT_EQ(offers[6], "0H");
  EXPECT_EQ(offers[7], "0He");
  EXPECT_EQ(offers.back(), "0Og");
}

TEST(Completion, OffersTheCommandsOfEveryInputOfTheProjectAndOfTheText) {
  World world;
  world.known_commands = {"Solvent", "opt"};
  EXPECT_THAT(offers_at("#Grid(a)\n# so^\n0 1\n#late\n", world),
              ElementsAre("2device", "2freq", "2grid", "2irc", "2model", "2opt", "2scan",
                          "2solvent", "2sp", "2ts"));
}

TEST(Completion, OffersNoCommandAfterTheHeader) {
  EXPECT_THAT(offers_at("#opt\n0 1\n#^\n", World()), IsEmpty());
}

TEST(Completion, OffersTheParametersOfTheSameCommandElsewhere) {
  World world;
  const std::string text = "#OPT(Tight, maxiter=5)\n#freq(other)\n";
  EXPECT_THAT(offers_at(text + "#opt(^\n", world), ElementsAre("0maxiter", "0Tight"));
  EXPECT_THAT(offers_at(text + "#opt(a='(,', ma^, b)\n", world), ElementsAre("2maxiter", "2Tight"));
  EXPECT_THAT(offers_at(text + "#opt(a=^)\n", world), IsEmpty());
  EXPECT_THAT(offers_at(text + "#opt(a=f(x), ma^\n", world), ElementsAre("2maxiter", "2Tight"));
  EXPECT_THAT(offers_at(text + "#opt(a), ma^)\n", world), ElementsAre("2maxiter", "2Tight"));
  EXPECT_THAT(offers_at(text + "#opt(a=f(x)^\n", world), IsEmpty());
  EXPECT_THAT(offers_at(text + "#opt(a=f(x)), ^\n#sp(a)\n", world), IsEmpty());
  EXPECT_THAT(offers_at(text + "#opt(a)^\n", world), IsEmpty());
  EXPECT_THAT(offers_at(text + "#opt=^\n", world), IsEmpty());
  EXPECT_THAT(offers_at(text + "#sp(^)\n", world), IsEmpty());
}

TEST(Completion, ReplacesNothingOnAnotherLineOfTheEditor) {
  const TemporaryFolder folder;
  World world;
  world.path = folder.path("job.qin");
  folder.write("water.xyz", "");
  const std::string text = "#opt(tight)\n";
  EXPECT_THAT(offers_at(text + "#\rti^", world),
              ElementsAre("2device", "2freq", "2irc", "2model", "2opt", "2scan", "2sp", "2ts"));
  EXPECT_THAT(offers_at(text + "#opt\rti^", world), IsEmpty());
  EXPECT_THAT(offers_at(text + "#opt(a,\rti^", world), ElementsAre("2tight"));
  EXPECT_THAT(offers_at(text + "#opt(a\rti^", world), IsEmpty());
  EXPECT_THAT(offers_at(text + "XYZ\rwa^", world), ElementsAre("2water.xyz"));
  EXPECT_THAT(offers_at(text + "XYZ a\rwa^", world), IsEmpty());
}

TEST(Completion, OffersTheNamesInOtherInputsOfTheFolder) {
  const TemporaryFolder folder;
  World world;
  world.path = folder.write("job.qin", "#saved(old)\n");
  folder.write("a.qin", "#pressure(kPa)\n0 1\n");
  folder.write("b.txt", "#text\n");
  EXPECT_THAT(offers_at("#^", world), ElementsAre("0device", "0freq", "0irc", "0model", "0opt",
                                                  "0pressure", "0scan", "0sp", "0ts"));
  EXPECT_THAT(offers_at("#pressure(^", world), ElementsAre("0kPa"));
}

TEST(Completion, OffersFoldersAndXyzFiles) {
  const TemporaryFolder folder;
  World world;
  world.path = folder.path("job.qin");
  std::filesystem::create_directories(folder.path("sub"));
  folder.write("water.xyz", "");
  folder.write("Argon.XYZ", "");
  folder.write(".hidden.xyz", "");
  folder.write("\xff.xyz", "");
  folder.write("notes.txt", "");
  folder.write("sub/helium.xyz", "");
  EXPECT_THAT(offers_at("0 1\nXYZ ^", world), ElementsAre("0Argon.XYZ", "0sub/", "0water.xyz"));
  EXPECT_THAT(offers_at("xyztraj  wa^", world), ElementsAre("2Argon.XYZ", "2sub/", "2water.xyz"));
  EXPECT_THAT(offers_at("XYZ sub/he^", world), ElementsAre("2helium.xyz"));
  EXPECT_THAT(offers_at("XYZ none/^", world), IsEmpty());
  world.path = {};
  EXPECT_THAT(offers_at("XYZ ^", world), IsEmpty());
}

}  // namespace

}  // namespace kelp::input::quill::language_server
