#include <gtest/gtest.h>

#include "tools/language_server/support/marks.hpp"

namespace kelp::input::quill::language_server {

namespace {

std::string lines_of(const Json& range) {
  const PositionRange place = read_range(range);
  return " " + std::to_string(place.start.line) + ":" + std::to_string(place.start.character) +
         "-" + std::to_string(place.end.line) + ":" + std::to_string(place.end.character);
}

std::string shown(const Json& symbols, const std::string& indent = {}) {
  std::string text;
  for (const Json& symbol : symbols) {
    text += indent + symbol["name"].get<std::string>();
    if (symbol["detail"] != "") text += " (" + symbol["detail"].get<std::string>() + ")";
    text += " kind " + symbol["kind"].dump() + lines_of(symbol["range"]) + "\n";
    const PositionRange heading = read_range(symbol["selectionRange"]);
    EXPECT_EQ(heading.start, read_range(symbol["range"]).start);
    if (symbol.contains("children")) text += shown(symbol["children"], indent + "  ");
  }
  return text;
}

struct Row {
  std::string name;
  std::string text;
  std::string outline;
};

class DocumentSymbols : public testing::TestWithParam<Row> {};

TEST_P(DocumentSymbols, AreThePartsOfTheInput) {
  World world;
  world.client.has_nested_symbols = true;
  EXPECT_EQ(shown(document_symbols(snapshot_of(GetParam().text), world.surroundings())),
            GetParam().outline);
}

const Row rows[] = {
    {"NoneInAnEmptyText", "", ""},
    {"OfWater",
     "#opt(maxiter=50, tight)\n#model = small\n#freq\n\n0 1\nO 0 0 0.117\nH 0 0.757 -0.469\n"
     "H 0 -0.757 -0.469\n\nB 1 2\ns 2 1 3 120 12\nB 1 x\nPOST a b.dat\nplease call\n",
     "header (3 commands) kind 3 0:0-2:5\n"
     "  #opt (maxiter=50, tight) kind 7 0:0-0:23\n"
     "  #model (small) kind 7 1:0-1:14\n"
     "  #freq kind 7 2:0-2:5\n"
     "charge and multiplicity (0 1) kind 14 4:0-4:3\n"
     "coordinates (3 atoms, H2O) kind 18 5:0-7:17\n"
     "post-processing (4 lines) kind 3 9:0-13:11\n"
     "  bond 1 2 (bond constraint) kind 24 9:0-9:5\n"
     "  angle 2 1 3, value 120, 12 steps (scan) kind 24 10:0-10:14\n"
     "  a b.dat (post file) kind 24 12:0-12:12\n"
     "  please call (raw text) kind 24 13:0-13:11\n"},
    {"OfReferences", "0 1\nXYZ a.xyz\nXYZ\nXYZ b.xyz\n",
     "charge and multiplicity (0 1) kind 14 0:0-0:3\n"
     "coordinates (2 XYZ files) kind 18 1:0-3:9\n"
     "  a.xyz kind 1 1:0-1:9\n"
     "  b.xyz kind 1 3:0-3:9\n"},
    {"OfAChargeAlone", "#sp\n-1 2\n",
     "header (1 command) kind 3 0:0-0:3\n"
     "  #sp kind 7 0:0-0:3\n"
     "charge and multiplicity (-1 2) kind 14 1:0-1:4\n"},
    {"OfACommandWithoutAName", "#\n",
     "header (1 command) kind 3 0:0-0:1\n"
     "  # kind 7 0:0-0:1\n"},
};

INSTANTIATE_TEST_SUITE_P(Table, DocumentSymbols, testing::ValuesIn(rows),
                         [](const auto& row) { return row.param.name; });

TEST(DocumentSymbols, AreAListForAnOldClient) {
  const Json place = {{"uri", "file:///job.qin"},
                      {"range", to_json(PositionRange{{0, 0}, {0, 4}})}};
  EXPECT_EQ(
      document_symbols(snapshot_of("#opt\n"), World().surroundings()),
      Json({{{"name", "header"}, {"kind", 3}, {"location", place}},
            {{"name", "#opt"}, {"kind", 7}, {"location", place}, {"containerName", "header"}}}));
}

}  // namespace

}  // namespace kelp::input::quill::language_server
