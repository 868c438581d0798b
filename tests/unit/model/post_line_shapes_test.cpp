#include "model/post_line_shapes.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <ostream>
#include <string>

namespace kelp::input::quill {

namespace {

constexpr std::size_t any_number = std::numeric_limits<std::size_t>::max();

struct ShapeRow {
  const char* name;
  std::string_view keyword;
  PostCommandKind kind;
  std::size_t least_tokens;
  std::size_t most_tokens;
};

void PrintTo(const ShapeRow& row, std::ostream* out) { *out << row.keyword; }

const ShapeRow shape_rows[] = {
    {"AtomConstraint", "C", PostCommandKind::AtomConstraint, 2, 2},
    {"BondConstraint", "B", PostCommandKind::BondConstraint, 3, 3},
    {"AngleConstraint", "A", PostCommandKind::AngleConstraint, 4, 4},
    {"DihedralConstraint", "D", PostCommandKind::DihedralConstraint, 5, 5},
    {"Scan", "S", PostCommandKind::Scan, 5, 7},
    {"PostFile", "POST", PostCommandKind::PostFile, 2, any_number},
};

class PostLineShapes : public testing::TestWithParam<ShapeRow> {};

TEST_P(PostLineShapes, KeywordAndKindLeadToTheSameRow) {
  const PostLineShape* shape = find_post_line_shape(GetParam().keyword);
  ASSERT_NE(shape, nullptr);
  EXPECT_EQ(shape->keyword, GetParam().keyword);
  EXPECT_EQ(shape->kind, GetParam().kind);
  EXPECT_EQ(find_post_line_shape(GetParam().kind), shape);
}

TEST_P(PostLineShapes, AcceptExactlyTheirNumbersOfTokens) {
  const PostLineShape* shape = find_post_line_shape(GetParam().keyword);
  ASSERT_NE(shape, nullptr);
  for (std::size_t tokens = 0; tokens < 12; ++tokens) {
    const bool fits = GetParam().least_tokens <= tokens && tokens <= GetParam().most_tokens;
    EXPECT_EQ(shape->accepts(tokens), fits) << tokens << " tokens";
  }
  EXPECT_EQ(shape->accepts(any_number), GetParam().most_tokens == any_number);
}

INSTANTIATE_TEST_SUITE_P(Table, PostLineShapes, testing::ValuesIn(shape_rows),
                         [](const auto& row) { return std::string(row.param.name); });

// Brackets are around words that may be left out.
TEST_P(PostLineShapes, ShowAFormWithTheirNumbersOfTokens) {
  const std::string form(find_post_line_shape(GetParam().keyword)->form);
  EXPECT_EQ(form.substr(0, form.find(' ')), GetParam().keyword);
  const auto words = 1 + static_cast<std::size_t>(std::count(form.begin(), form.end(), ' '));
  const auto optional = static_cast<std::size_t>(std::count(form.begin(), form.end(), '['));
  EXPECT_EQ(words - optional, GetParam().least_tokens);
  if (GetParam().most_tokens != any_number) {
    EXPECT_EQ(words, GetParam().most_tokens);
  }
}

TEST(PostLineShapes, AreInTheOrderOfTheEnumerators) {
  for (std::size_t i = 0; i < post_line_shapes.size(); ++i)
    EXPECT_EQ(static_cast<std::size_t>(post_line_shapes[i].kind), i);
}

TEST(PostLineShapes, AreAsManyAsTheKinds) {
  EXPECT_EQ(post_line_shapes.size(), std::size(shape_rows) + 1);  // raw text has no keyword
}

TEST(PostLineShapes, AreFoundByWholeUpperCaseKeywordsOnly) {
  for (const std::string_view word :
       {" ",  "c",   "b",     "a",   "d",  "s",  "post", "Post", "E",    "R",   "P",
        "PO", "POS", "POSTS", "OST", "CC", "C ", " C",   "B1",   "SCAN", "RAW", "#"}) {
    EXPECT_EQ(find_post_line_shape(word), nullptr) << "\"" << word << "\"";
  }
}

TEST(PostLineShapes, HaveARowForRawTextWithoutAKeyword) {
  const PostLineShape* shape = find_post_line_shape(PostCommandKind::Raw);
  ASSERT_NE(shape, nullptr);
  EXPECT_EQ(shape->kind, PostCommandKind::Raw);
  EXPECT_EQ(shape->keyword, "");
  EXPECT_EQ(find_post_line_shape(""), shape);
  EXPECT_TRUE(shape->accepts(0));
  EXPECT_TRUE(shape->accepts(any_number));
}

TEST(PostLineShapes, DoNotIncludeUnknownKinds) {
  constexpr auto least = std::numeric_limits<std::int32_t>::min();
  constexpr auto greatest = std::numeric_limits<std::int32_t>::max();
  for (const std::int32_t number : {-1, 7, 8, 256, least, greatest}) {
    EXPECT_EQ(find_post_line_shape(PostCommandKind{number}), nullptr) << number;
  }
}

}  // namespace

}  // namespace kelp::input::quill
