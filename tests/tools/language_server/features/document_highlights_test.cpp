#include <gtest/gtest.h>

#include "tools/language_server/support/marks.hpp"

namespace kelp::input::quill::language_server {

namespace {

struct Row {
  std::string name;
  std::string marked;
  std::string kinds;
};

class DocumentHighlights : public testing::TestWithParam<Row> {};

TEST_P(DocumentHighlights, AreTheAtomAndThePlacesThatNameIt) {
  const MarkedSource source = without_marks(GetParam().marked);
  const Snapshot snapshot = snapshot_of(source.text);
  const Json answer = document_highlights(snapshot, source.cursor, World().surroundings());
  EXPECT_EQ(with_marks(source, ranges_of(answer, snapshot)), without_cursor(GetParam().marked));
  std::string kinds;
  for (const Json& highlight : answer) kinds += highlight["kind"].dump();
  EXPECT_EQ(kinds, GetParam().kinds);
}

const Row rows[] = {
    {"FromTheLineOfTheAtom", " [[O 0 ^0 0]]\nH 0 0 1\nB [[1]] 2\nC 2\nS 2 [[1]] 1 10\n", "322"},
    {"FromANumber", "O 0 0 0\n[[H 0 0 1]]\nB 1 [[^2]]\nC [[2]]\n", "322"},
    {"OfAnAtomThatDoesNotExist", "O 0 0 0\nC [[^2]]\n", "2"},
    {"NoneElsewhere", "#o^pt\nO 0 0 0\nC 1\n", ""},
};

INSTANTIATE_TEST_SUITE_P(Table, DocumentHighlights, testing::ValuesIn(rows),
                         [](const auto& row) { return row.param.name; });

}  // namespace

}  // namespace kelp::input::quill::language_server
