#include "language_server/facts/measures.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

namespace kelp::input::quill::language_server {

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double nothing = std::numeric_limits<double>::quiet_NaN();

struct Row {
  std::string name;
  std::vector<AtomRecord> atoms;
  double value;  // `nothing` where it is not defined
};

class Measures : public testing::TestWithParam<Row> {};

TEST_P(Measures, AreThoseOfTheAtoms) {
  const std::optional<double> value = measure(GetParam().atoms);
  EXPECT_EQ(value.has_value(), !std::isnan(GetParam().value));
  if (value) {
    EXPECT_NEAR(*value, GetParam().value, 1e-4);
  }
}

const AtomRecord oxygen = {"O", 0.0, 0.0, 0.117176};
const AtomRecord left_hydrogen = {"H", 0.0, 0.756950, -0.468706};
const AtomRecord right_hydrogen = {"H", 0.0, -0.756950, -0.468706};

AtomRecord at(double x, double y, double z) { return {"C", x, y, z}; }

const Row rows[] = {
    {"NoneOfNoAtoms", {}, nothing},
    {"NoneOfOneAtom", {oxygen}, nothing},
    {"NoneOfFiveAtoms", {at(0, 0, 0), at(1, 0, 0), at(1, 1, 0), at(1, 1, 1), at(0, 1, 1)}, nothing},
    {"BondOfWater", {oxygen, left_hydrogen}, 0.9572},
    {"AngleOfWater", {left_hydrogen, oxygen, right_hydrogen}, 104.5200},
    {"DistanceToItself", {oxygen, oxygen}, 0.0},
    {"DistanceInSpace", {at(1, 2, 3), at(3, 5, 9)}, 7.0},
    {"AngleOfLargeNumbers", {at(3e200, 0, 0), at(0, 0, 0), at(0, 4e200, 0)}, 90.0},
    {"NoDistanceToInfinity", {at(0, 0, 0), at(infinity, 0, 0)}, nothing},
    {"NoDistanceThatIsTooLarge", {at(-1.5e308, 0, 0), at(1.5e308, 0, 0)}, nothing},
    {"RightAngle", {at(2, 0, 0), at(0, 0, 0), at(0, 0, 5)}, 90.0},
    {"StraightAngle", {at(1, 0, 0), at(0, 0, 0), at(-3, 0, 0)}, 180.0},
    {"NoTurn", {at(1, 0, 0), at(0, 0, 0), at(3, 0, 0)}, 0.0},
    {"NoAngleAtAnAtomInTheSamePlace", {at(0, 0, 0), at(0, 0, 0), at(1, 0, 0)}, nothing},
    {"NoAngleToAnAtomInTheSamePlace", {at(1, 0, 0), at(0, 0, 0), at(0, 0, 0)}, nothing},
    {"NoAngleToNotANumber", {at(1, 0, 0), at(0, 0, 0), at(0, nothing, 0)}, nothing},
    {"NoAngleThatIsTooLarge", {at(1.5e308, 1.5e308, 0), at(0, 0, 0), at(1, 0, 0)}, nothing},
    {"ClockwiseDihedral", {at(1, 0, 0), at(0, 0, 0), at(0, 0, 1), at(0, 1, 1)}, 90.0},
    {"CounterClockwiseDihedral", {at(1, 0, 0), at(0, 0, 0), at(0, 0, 1), at(0, -1, 1)}, -90.0},
    {"DihedralOfUnequalLengths", {at(1, 0, 0), at(0, 0, 0), at(0, 0, 2), at(3, 3, 7)}, 45.0},
    {"CisDihedral", {at(1, 0, 0), at(0, 0, 0), at(0, 0, 1), at(1, 0, 1)}, 0.0},
    {"TransDihedral", {at(1, 0, 0), at(0, 0, 0), at(0, 0, 1), at(-1, 0, 1)}, 180.0},
    {"TransDihedralFromBelow", {at(1, 0, 0), at(0, 0, 0), at(0, 0, 1), at(-1, -0.0, 1)}, 180.0},
    {"NoDihedralOnALine", {at(0, 0, -1), at(0, 0, 0), at(0, 0, 1), at(1, 0, 1)}, nothing},
    {"NoDihedralOnALineAtItsEnd", {at(1, 0, 0), at(0, 0, 0), at(0, 0, 1), at(0, 0, 2)}, nothing},
    {"NoDihedralOnALineButForRounding",
     {at(0, 0.0000005, -1), at(0, 0, 0), at(0, 0, 1), at(1, 0, 1)},
     nothing},
    {"NoDihedralAtInfinity", {at(1, 0, 0), at(0, 0, 0), at(0, 0, 1), at(0, infinity, 1)}, nothing},
};

INSTANTIATE_TEST_SUITE_P(Table, Measures, testing::ValuesIn(rows),
                         [](const auto& row) { return row.param.name; });

}  // namespace

}  // namespace kelp::input::quill::language_server
