#include <gtest/gtest.h>

#include "tools/language_server/support/marks.hpp"

namespace kelp::input::quill::language_server {

namespace {

struct Row {
  std::string name;
  std::string marked;  // the line to which the number at the cursor leads, if there is one
};

class Definition : public testing::TestWithParam<Row> {};

TEST_P(Definition, IsTheLineOfTheAtom) {
  const MarkedSource source = without_marks(GetParam().marked);
  const Snapshot snapshot = snapshot_of(source.text);
  const Json answer = definition(snapshot, source.cursor, World().surroundings());
  std::vector<lint::Range> found;
  if (!answer.is_null()) {
    EXPECT_EQ(answer["uri"], snapshot.uri());
    EXPECT_EQ(answer.size(), 2U);
    found = ranges_of(Json::array({answer}), snapshot);
  }
  EXPECT_EQ(with_marks(source, found), without_cursor(GetParam().marked));
}

const Row rows[] = {
    {"FromAConstraint", "0 1\nO 0 0 0\n [[H 0 0 1]] \nB 1 ^2\n"},
    {"FromTheEndOfANumber", "0 1\n[[O 0 0 0]]\nH 0 0 1\nB 1^ 2\n"},
    {"FromTheMiddleOfANumber", "[[O 0 0 0]]\nH 0 0 1\nB 00^1 2\n"},
    {"FromAScan", "[[O 0 0 0]]\nH 0 0 1\ns ^1 2 1.5 10\n"},
    {"NotFromTheValueOfAScan", "O 0 0 0\nH 0 0 1\ns 1 2 ^1 10\n"},
    {"NotFromTheKeyword", "O 0 0 0\nH 0 0 1\n^B 1 2\n"},
    {"NotFromAnAtomThatDoesNotExist", "O 0 0 0\nH 0 0 1\nB 1 ^3\n"},
    {"NotFromZero", "O 0 0 0\nH 0 0 1\nB ^0 1\n"},
    {"NotFromANegativeNumber", "O 0 0 0\nH 0 0 1\nB ^-1 1\n"},
    {"NotFromRawText", "O 0 0 0\nH 0 0 1\nP 1\nB ^1 2 3\n"},
    {"NotFromADroppedLine", "O 0 0 0\nH 0 0 1\nB ^1 x\n"},
    {"NotFromAnAtom", "O 0 ^0 0\nH 0 0 1\nB 1 2\n"},
    {"NotFromAnEmptyText", "^"},
    {"NotFromTheEndOfTheText", "O 0 0 0\nB 1 1\n^"},
};

INSTANTIATE_TEST_SUITE_P(Table, Definition, testing::ValuesIn(rows),
                         [](const auto& row) { return row.param.name; });

TEST(Definition, IsALineOfTheXyzFileThatTheTextRefersTo) {
  World world;
  world.xyz = "3\nwater\nO 0 0 0.117\nH 0 0.757 -0.469\nH 0 -0.757 -0.469\n";
  const MarkedSource source = without_marks("0 1\nXYZ a.xyz\nB 1 ^3\n");
  const Json start = {{"line", 4}, {"character", 0}};
  EXPECT_EQ(definition(snapshot_of(source.text), source.cursor, world.surroundings()),
            Json({{"uri", "file:///a.xyz"}, {"range", {{"start", start}, {"end", start}}}}));
}

TEST(Definition, IsNowhereWithoutTheXyzFile) {
  const MarkedSource source = without_marks("0 1\nXYZ a.xyz\nB 1 ^3\n");
  EXPECT_TRUE(
      definition(snapshot_of(source.text), source.cursor, World().surroundings()).is_null());
}

// Nobody can tell in which of them.
TEST(Definition, IsNowhereInSeveralXyzFiles) {
  World world;
  world.xyz = "1\n\nO 0 0 0\n";
  const MarkedSource source = without_marks("0 1\nXYZ a.xyz\nXYZ a.xyz\nC ^1\n");
  EXPECT_TRUE(definition(snapshot_of(source.text), source.cursor, world.surroundings()).is_null());
}

}  // namespace

}  // namespace kelp::input::quill::language_server
