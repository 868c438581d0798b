#include <gtest/gtest.h>

#include "tools/language_server/support/marks.hpp"

namespace kelp::input::quill::language_server {

namespace {

struct Row {
  std::string name;
  std::string marked;
  std::string targets;
};

class DocumentLinks : public testing::TestWithParam<Row> {};

TEST_P(DocumentLinks, AreThePathsOfReferences) {
  const MarkedSource source = without_marks(GetParam().marked);
  const Snapshot snapshot = snapshot_of(source.text);
  const Json answer = document_links(snapshot, World().surroundings());
  EXPECT_EQ(with_marks(source, ranges_of(answer, snapshot)), GetParam().marked);
  std::string targets;
  for (const Json& link : answer) targets += link["target"].get<std::string>() + " ";
  EXPECT_EQ(targets, GetParam().targets);
}

const Row rows[] = {
    {"NoneInAnEmptyText", "", ""},
    {"OfXyzFiles", "0 1\nXYZ [[a.xyz]]\n xyz\t[[sub/b c.xyz]] \n",
     "file:///a.xyz file:///sub/b%20c.xyz "},
    {"OfATrajectory", "XYZTRAJ [[/data/path.xyz]]\r\n", "file:///data/path.xyz "},
    {"NotOfAReferenceWithoutAPath", "0 1\nXYZ\nXYZ [[a.xyz]]\n", "file:///a.xyz "},
    {"NotOfAPostFile", "0 1\nO 0 0 0\nPOST a.dat\n", ""},
    {"NotOfAReferenceThatIsRawText", "O 0 0 0\nXYZ a.xyz\n", ""},
};

INSTANTIATE_TEST_SUITE_P(Table, DocumentLinks, testing::ValuesIn(rows),
                         [](const auto& row) { return row.param.name; });

TEST(DocumentLinks, AreAbsentInATextThatWasNeverSaved) {
  const std::string text = "XYZ a.xyz\n";
  const Snapshot snapshot("untitled:1", 1, lossless::read_text(text), LineStarts(text),
                          PositionEncoding::Utf16);
  EXPECT_EQ(document_links(snapshot, World().surroundings()), Json::array());
}

}  // namespace

}  // namespace kelp::input::quill::language_server
