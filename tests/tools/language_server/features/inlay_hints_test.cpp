#include <gtest/gtest.h>

#include "tools/language_server/support/marks.hpp"

namespace kelp::input::quill::language_server {

namespace {

struct Row {
  std::string name;
  std::string marked;  // the range that the editor shows
  std::string hints;   // line, character and label of each
};

class InlayHints : public testing::TestWithParam<Row> {};

std::string shown(const Json& hints) {
  std::string text;
  for (const Json& hint : hints) {
    const Position position = read_position(hint["position"]);
    text += std::to_string(position.line) + ":" + std::to_string(position.character) + "=" +
            hint["label"].get<std::string>() + " ";
    EXPECT_EQ(hint["paddingRight"], true);
    EXPECT_EQ(hint.size(), 3U);
  }
  return text;
}

TEST_P(InlayHints, AreTheNumbersOfAtoms) {
  const MarkedSource source = without_marks(GetParam().marked);
  EXPECT_EQ(
      shown(inlay_hints(snapshot_of(source.text), source.ranges.front(), World().surroundings())),
      GetParam().hints);
}

const Row rows[] = {
    {"NoneInAnEmptyText", "[[]]", ""},
    {"BeforeEveryAtom", "[[#sp\n0 1\nO 0 0 0\n\n \tH 0 0 1\nB 1 2\n]]", "2:0=1 4:2=2 "},
    {"OnlyInTheRange", "0 1\nO 0 0 0\nH[[ 0 0 1\nH 0 ]]1 0\nH 1 0 0\n", "2:0=2 3:0=3 "},
    {"OnTheLineOfAnEmptyRange", "0 1\nO 0 0 0\nH [[]]0 0 1\nH 0 1 0\n", "2:0=2 "},
    {"NoneInAnotherSection", "[[0 1\n]]XYZ a.xyz\n", ""},
};

INSTANTIATE_TEST_SUITE_P(Table, InlayHints, testing::ValuesIn(rows),
                         [](const auto& row) { return row.param.name; });

TEST(InlayHints, CanBeSwitchedOff) {
  World world;
  world.settings.shows_atom_numbers = false;
  EXPECT_EQ(inlay_hints(snapshot_of("O 0 0 0\n"), {0, 8}, world.surroundings()), Json::array());
}

}  // namespace

}  // namespace kelp::input::quill::language_server
