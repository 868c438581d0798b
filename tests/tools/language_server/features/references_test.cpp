#include <gtest/gtest.h>

#include "language_server/protocol/response_error.hpp"
#include "tools/language_server/support/marks.hpp"

namespace kelp::input::quill::language_server {

namespace {

struct Row {
  std::string name;
  std::string marked;  // all places that name the atom at the cursor
  bool includes_declaration = false;
};

Json params_at(const Snapshot& snapshot, std::size_t cursor, bool includes_declaration) {
  return {{"position", to_json(snapshot.position_of(cursor))},
          {"context", {{"includeDeclaration", includes_declaration}}}};
}

class References : public testing::TestWithParam<Row> {};

TEST_P(References, AreThePlacesThatNameTheAtom) {
  const MarkedSource source = without_marks(GetParam().marked);
  const Snapshot snapshot = snapshot_of(source.text);
  const Json answer =
      references(snapshot, params_at(snapshot, source.cursor, GetParam().includes_declaration),
                 World().surroundings());
  for (const Json& place : answer) EXPECT_EQ(place["uri"], snapshot.uri());
  EXPECT_EQ(with_marks(source, ranges_of(answer, snapshot)), without_cursor(GetParam().marked));
}

const Row rows[] = {
    {"FromTheLineOfTheAtom", "O 0 ^0 0\nH 0 0 1\nB [[1]] 2\nC 2\nS 2 [[01]] 1 10\n"},
    {"FromOneOfThem", "O 0 0 0\nH 0 0 1\nB 1 [[2]]\nC [[^2]]\n"},
    {"WithTheLineOfTheAtom", "[[O 0 0 0]]\nH 0 0 1\nB [[^1]] 2\n", true},
    {"OfAnAtomThatDoesNotExist", "O 0 0 0\nB 1 [[3^]]\nC [[3]]\n", true},
    {"OfAnAtomInAFile", "0 1\nXYZ b.xyz\nB [[1]] 2\nC [[^1]]\n", true},
    {"NoneOfAnAtomThatNobodyNames", "^O 0 0 0\nH 0 0 1\nC 2\n"},
    {"NoneOfACommand", "#o^pt\nO 0 0 0\nC 1\n", true},
    {"NoneOfTheStepsOfAScan", "O 0 0 0\nH 0 0 1\nS 1 2 1 ^1\n", true},
};

INSTANTIATE_TEST_SUITE_P(Table, References, testing::ValuesIn(rows),
                         [](const auto& row) { return row.param.name; });

TEST(References, NeedAPosition) {
  EXPECT_THROW(references(snapshot_of("O 0 0 0\n"), Json::object(), World().surroundings()),
               ResponseError);
}

TEST(References, DoNotNeedAContext) {
  const MarkedSource source = without_marks("^O 0 0 0\nC 1\n");
  const Snapshot snapshot = snapshot_of(source.text);
  EXPECT_EQ(
      references(snapshot, {{"position", to_json(snapshot.position_of(0))}}, World().surroundings())
          .size(),
      1U);
}

}  // namespace

}  // namespace kelp::input::quill::language_server
