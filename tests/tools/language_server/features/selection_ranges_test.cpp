#include <gtest/gtest.h>

#include "tools/language_server/support/marks.hpp"

namespace kelp::input::quill::language_server {

namespace {

struct Row {
  std::string name;
  std::string marked;  // the ranges around the cursor, one in another
};

class SelectionRanges : public testing::TestWithParam<Row> {};

Json params_at(const Snapshot& snapshot, const std::vector<std::size_t>& offsets) {
  Json positions = Json::array();
  for (const std::size_t offset : offsets)
    positions.push_back(to_json(snapshot.position_of(offset)));
  return {{"positions", positions}};
}

/// The ranges from the smallest to the largest.
std::vector<lint::Range> unfolded(const Snapshot& snapshot, const Json& selection) {
  std::vector<lint::Range> ranges;
  for (const Json* one = &selection; one->is_object(); one = &find_member(*one, "parent"))
    ranges.push_back(snapshot.range_of(read_range((*one)["range"])));
  return ranges;
}

TEST_P(SelectionRanges, AreNested) {
  const MarkedSource source = without_marks(GetParam().marked);
  const Snapshot snapshot = snapshot_of(source.text);
  const Json answer =
      selection_ranges(snapshot, params_at(snapshot, {source.cursor}), World().surroundings());
  ASSERT_EQ(answer.size(), 1U);
  EXPECT_EQ(unfolded(snapshot, answer[0]), source.ranges);
}

const Row rows[] = {
    {"OfAnEmptyText", "[[^]]"},
    {"OfAParameter", "[[[[#freq\n[[#opt([[max^iter]]=50)]]]]\n0 1\nO 0 0 0\n]]"},
    {"OfAValue", "[[[[#freq\n[[#opt(maxiter=[[^50]])]]]]\n0 1\nO 0 0 0\n]]"},
    {"BetweenPieces", "[[#freq\n0 1\n[[[[O  ^ 0 0 0]]\nH 0 0 1]]\n]]"},
    {"BetweenTheSections", "[[#freq\n\n^\n0 1\nO 0 0 0\n]]"},
    {"OfChargeAndMultiplicity", "[[#freq\n[[[[^0]] 1]]\nO 0 0 0\n]]"},
    {"OfASectionWithOneLine", "[[#freq\n0 1\n[[[[^O]] 0 0 0]]\n]]"},
    {"OfATextThatIsOneCommand", "[[#fr^eq]]"},
};

INSTANTIATE_TEST_SUITE_P(Table, SelectionRanges, testing::ValuesIn(rows),
                         [](const auto& row) { return row.param.name; });

TEST(SelectionRanges, AreAsManyAsThePositions) {
  const Snapshot snapshot = snapshot_of("#opt\n0 1\nO 0 0 0\n");
  EXPECT_EQ(
      selection_ranges(snapshot, params_at(snapshot, {0, 5, 9}), World().surroundings()).size(),
      3U);
  EXPECT_EQ(selection_ranges(snapshot, params_at(snapshot, {}), World().surroundings()),
            Json::array());
}

}  // namespace

}  // namespace kelp::input::quill::language_server
