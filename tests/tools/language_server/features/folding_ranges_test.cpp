#include <gtest/gtest.h>

#include <string>

#include "language_server/features/features.hpp"
#include "tools/language_server/support/snapshots.hpp"

namespace kelp::input::quill::language_server {

namespace {

struct Row {
  std::string name;
  std::string text;
  std::string ranges;  // first and last line of each
};

class FoldingRanges : public testing::TestWithParam<Row> {};

std::string shown(const Json& ranges) {
  std::string text;
  for (const Json& range : ranges) {
    EXPECT_EQ(range["kind"], "region");
    EXPECT_EQ(range.size(), 3U);
    text += range["startLine"].dump() + "-" + range["endLine"].dump() + " ";
  }
  return text;
}

TEST_P(FoldingRanges, AreTheSectionsWithSeveralLines) {
  const Settings settings;
  const ClientAbilities client;
  EXPECT_EQ(shown(folding_ranges(snapshot_of(GetParam().text), {settings, client})),
            GetParam().ranges);
}

const Row rows[] = {
    {"NothingInAnEmptyText", "", ""},
    {"NothingWhereEachSectionHasOneLine", "#sp\n0 1\nO 0 0 0\nP a.dat\n", ""},
    {"HeaderAtomsAndPostProcessing",
     "#opt\n#freq\n0 1\nO 0 0 0.117\nH 0 0.757 -0.469\nB 1 2\nB 1 3\n", "0-1 3-4 5-6 "},
    {"References", "#sp\n0 1\nXYZ a.xyz\nXYZ b.xyz\nP a.dat\n", "2-3 "},
    {"BlankLinesBetweenAreInASectionAndThoseAfterItAreNot", "#opt\n\n#freq\n\n0 1\nO 0 0 0\n",
     "0-2 "},
    {"DroppedLinesArePostProcessing", "0 1\nO 0 0 0.117\nP a.dat\nB 1 x\n", "2-3 "},
    {"ALoneCarriageReturnIsALineForTheEditor", "#opt\r#freq\n#model=a\n", "0-2 "},
    {"BothEndsOfARunInOneLineOfTheEditor", "0 1\nO 0 0 0\nH 0 0 1", "1-2 "},
};

INSTANTIATE_TEST_SUITE_P(Table, FoldingRanges, testing::ValuesIn(rows),
                         [](const auto& row) { return row.param.name; });

}  // namespace

}  // namespace kelp::input::quill::language_server
