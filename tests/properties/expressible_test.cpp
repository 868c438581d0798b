// Each exception from reading back is one: a document to which it alone applies reads back as
// something else, and a near miss reads back.

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <limits>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "properties/as_written.hpp"
#include "properties/expressible.hpp"
#include "properties/holds.hpp"
#include "properties/writing.hpp"

namespace kelp::input::quill {
namespace {

using Kind = PostCommandKind;

struct Row {
  std::string_view reason;
  QuillInput document;
  QuillInput near_miss;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.reason; }

QuillInput with(HeaderCommand command) { return QuillInput{{std::move(command)}}; }

HeaderCommand list(std::vector<CommandParameter> parameters) {
  return {"opt", HeaderCommandKind::ParameterList, std::nullopt, std::move(parameters)};
}

GeometryBlock atoms(std::vector<AtomRecord> list) {
  return {GeometryKind::Atoms, 0, 1, false, std::move(list), {}};
}

GeometryBlock files(std::vector<std::string> paths) {
  return {GeometryKind::XyzFile, 0, 1, false, {}, std::move(paths)};
}

PostCommand raw(std::string text) { return {Kind::Raw, {}, {}, {}, "", std::move(text)}; }

QuillInput with(PostCommand command, GeometryBlock geometry = files({"a"})) {
  return QuillInput{{}, std::move(geometry), {std::move(command)}};
}

const AtomRecord hydrogen{"H", 0.5, 0.25, -0.125};

const Row rows[] = {
    {"a line break in a header command ends its line", with(HeaderCommand{"a\nb"}),
     with(HeaderCommand{"a\rb"})},
    {"blanks around a command's name are trimmed", with(HeaderCommand{"a "}),
     with(HeaderCommand{"a b"})},
    {"a command's name ends at the first parenthesis or equals sign", with(HeaderCommand{"a(b)"}),
     with(HeaderCommand{"a)b"})},
    {"blanks and quotes around a value are removed",
     with(HeaderCommand{"a", HeaderCommandKind::Assignment, "'b'"}),
     with(HeaderCommand{"a", HeaderCommandKind::Assignment, "'b"})},
    {"a parameter's name ends at the first equals sign and is trimmed, and must not be empty",
     with(list({{"", "b"}})), with(list({{"a", ""}}))},
    {"a comma ends a parameter unless it is after an open quote", with(list({{"a", "1,2"}})),
     with(list({{"a", "1'2,3'4"}}))},
    {"a comma ends a parameter unless it is after an open quote", with(list({{"a", "'1"}, {"b"}})),
     with(list({{"a"}, {"b", "'1"}}))},
    {"a section without a line is not there", QuillInput{{}, atoms({})},
     QuillInput{{}, GeometryBlock{GeometryKind::XyzTrajectory}}},
    {"a path ends with its line, is trimmed, and must not be empty", QuillInput{{}, files({" a"})},
     QuillInput{{}, files({"a  b"})}},
    {"a symbol is a word of letters and gets the spelling of an element's",
     QuillInput{{}, atoms({{"CL", 0, 0, 0}})}, QuillInput{{}, atoms({{"Cl", 0, 0, 0}})}},
    {"a first atom with the symbol XYZ or XYZTRAJ is a reference",
     QuillInput{{}, atoms({{"Xyz", 0, 0, 0}})},
     QuillInput{{}, atoms({hydrogen, {"Xyz", 0, 0, 0}})}},
    {"a coordinate that fills its field touches what is before it",
     QuillInput{{}, atoms({{"H", 0, 1234567, 0}})},
     QuillInput{{}, atoms({{"H", 1234567, 123456, 0}})}},
    {"a coordinate that fills its field touches what is before it",
     QuillInput{{}, atoms({{"Abc", -123456, 0, 0}})},
     QuillInput{{}, atoms({{"Abc", -12345, 0, 0}})}},
    {"an empty post-processing line is not there", with(raw("")), with(raw("."))},
    {"an empty post-processing line is not there", with(PostCommand{static_cast<Kind>(7)}),
     with(raw("7"))},
    {"text in the post-processing section ends with its line and is trimmed", with(raw("a\nb")),
     with(raw("a\fb"))},
    {"text in the post-processing section ends with its line and is trimmed",
     with(PostCommand{Kind::PostFile, {}, {}, {}, " a"}),
     with(PostCommand{Kind::PostFile, {}, {}, {}, "a  b"})},
    {"the keyword and the number of tokens decide on the kind of a post-processing line",
     with(raw("B 1 2")), with(raw("B 1"))},
    {"the keyword and the number of tokens decide on the kind of a post-processing line",
     with(PostCommand{Kind::BondConstraint, {1}}), with(PostCommand{Kind::BondConstraint, {1, 2}})},
    {"a scan without a value or steps is read with the numbers before in their place",
     with(PostCommand{Kind::Scan, {1, 2, 3}, std::nullopt, 4}),
     with(PostCommand{Kind::Scan, {1, 2}, 3.0, 4})},
    {"the first post-processing line may belong to the section before it", with(raw("xyz b")),
     with(raw("xyztraj b"))},
    {"the first post-processing line may belong to the section before it",
     with(PostCommand{Kind::AngleConstraint, {1, 2, 3}}, atoms({hydrogen})),
     with(PostCommand{Kind::AngleConstraint, {1, 2, 3}})},
    {"the first post-processing line may belong to the section before it", with(raw("0 1"), {}),
     with(raw("0 1"), GeometryBlock{GeometryKind::None, 0, 1, true})},
    {"the first post-processing line may belong to the section before it", with(raw("#a"), {}),
     with(raw("a#"), {})},
};

class ExceptionFromReadingBack : public testing::TestWithParam<Row> {};

TEST_P(ExceptionFromReadingBack, AppliesAlone) {
  const QuillInput written = as_written(GetParam().document);
  std::vector<std::string_view> reasons;
  for (const Exception& exception : exceptions()) {
    if (exception.applies(written)) reasons.push_back(exception.reason);
  }
  EXPECT_EQ(reasons, std::vector{GetParam().reason});
}

// check_round_trip() throws as well when a document reads back to which an exception applies.
TEST_P(ExceptionFromReadingBack, IsOne) {
  EXPECT_TRUE(holds([] { check_round_trip(GetParam().document); }));
}

TEST_P(ExceptionFromReadingBack, DoesNotApplyToANearMiss) {
  EXPECT_EQ(reason_not_to_read_back(as_written(GetParam().near_miss)), std::nullopt);
  EXPECT_TRUE(holds([] { check_round_trip(GetParam().near_miss); }));
}

INSTANTIATE_TEST_SUITE_P(Table, ExceptionFromReadingBack, testing::ValuesIn(rows));

TEST(ExceptionsFromReadingBack, AreAllInTheTable) {
  for (const Exception& exception : exceptions()) {
    const bool is_there = std::any_of(std::begin(rows), std::end(rows), [&](const Row& row) {
      return row.reason == exception.reason;
    });
    EXPECT_TRUE(is_there) << exception.reason;
  }
}

TEST(ReadingBack, HoldsForNumbersAtTheEndsOfTheirRanges) {
  using Limits = std::numeric_limits<double>;
  for (const double value : {0.0, -0.0, 5e-7, -4e-7, 0.0000015, 4294967296.000001, 8796093022207.5,
                             8796093022208.5, 1e22, Limits::max(), Limits::min(),
                             Limits::denorm_min(), Limits::infinity(), Limits::quiet_NaN()}) {
    for (const double signed_value : {value, -value}) {
      const QuillInput document{
          {}, atoms({{"H", signed_value, 0, 0}}), {{Kind::Scan, {1, 2}, signed_value, 3}}};
      EXPECT_EQ(reason_not_to_read_back(as_written(document)), std::nullopt);
      EXPECT_TRUE(holds([&] { check_round_trip(document); })) << signed_value;
    }
  }
}

}  // namespace
}  // namespace kelp::input::quill
