#include <gtest/gtest.h>

#include <limits>

#include "edit_support/document_difference.hpp"

namespace kelp::input::quill::edit_support {

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
const double not_a_number = std::numeric_limits<double>::quiet_NaN();

QuillInput with_coordinate(double y) {
  QuillInput input;
  input.geometry.kind = GeometryKind::Atoms;
  input.geometry.atoms = {{"O", 0.0, 0.0, 0.0}, {"H", 1.0, y, 3.0}};
  return input;
}

QuillInput with_scan_value(double value) {
  QuillInput input;
  input.post_commands.emplace_back(PostCommandKind::Scan, std::vector<std::int32_t>{1, 2}, value,
                                   10);
  return input;
}

struct NumberRow {
  std::string_view name;
  double meant;
  double found;
  double max_change;
  bool accepted;
  std::size_t count;
  double largest;
};

void PrintTo(const NumberRow& row, std::ostream* out) { *out << row.name; }

const NumberRow number_rows[] = {
    {"Same", 1.0, 1.0, 0.0, true, 0, 0.0},
    {"UpToTheLimit", 1.0, 1.25, 0.25, true, 1, 0.25},
    {"Downwards", 1.25, 1.0, 0.25, true, 1, 0.25},
    {"OverTheLimit", 1.0, 1.25, 0.125, false, 1, 0.25},
    {"AnyChangeWithoutALimit", 1.0, 1.25, 0.0, false, 1, 0.25},
    {"TheSignOfZeroWithinALimit", 0.0, -0.0, 1e-6, true, 1, 0.0},
    {"TheSignOfZeroWithoutALimit", 0.0, -0.0, 0.0, false, 1, 0.0},
    {"Infinities", infinity, infinity, 0.0, true, 0, 0.0},
    {"InfinitiesOfTwoSigns", infinity, -infinity, 1e300, false, 1, infinity},
    {"InfinityForANumber", 1e300, infinity, 1e300, false, 1, infinity},
    {"NaNs", not_a_number, not_a_number, 0.0, true, 0, 0.0},
    {"NaNsOfTwoSigns", not_a_number, -not_a_number, 1.0, false, 1, infinity},
    {"NaNForANumber", 1.0, not_a_number, 1.0, false, 1, infinity},
    {"ANumberForNaN", not_a_number, 1.0, 1.0, false, 1, infinity},
};

class NumberChange : public testing::TestWithParam<NumberRow> {
 protected:
  static void expect_measured(const DocumentComparison& comparison) {
    EXPECT_EQ(comparison.equal(), GetParam().accepted);
    EXPECT_EQ(comparison.number_changes.count, GetParam().count);
    EXPECT_EQ(comparison.number_changes.largest, GetParam().largest);
  }
};

TEST_P(NumberChange, OfACoordinateIsMeasured) {
  expect_measured(compare(with_coordinate(GetParam().meant), with_coordinate(GetParam().found),
                          GetParam().max_change));
}

TEST_P(NumberChange, OfAScanValueIsMeasured) {
  expect_measured(compare(with_scan_value(GetParam().meant), with_scan_value(GetParam().found),
                          GetParam().max_change));
}

INSTANTIATE_TEST_SUITE_P(Table, NumberChange, testing::ValuesIn(number_rows),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace

}  // namespace kelp::input::quill::edit_support
