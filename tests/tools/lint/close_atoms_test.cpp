#include "lint/close_atoms.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

namespace kelp::input::quill::lint {

bool operator==(const ClosePair& left, const ClosePair& right) {
  return left.first == right.first && left.second == right.second &&
         left.distance == right.distance;
}

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

std::vector<ClosePair> find_close_atoms(const std::vector<AtomRecord>& atoms, double limit) {
  std::vector<ClosePair> pairs;
  for_each_close_pair(atoms, limit, [&](const ClosePair& pair) { pairs.push_back(pair); });
  return pairs;
}

std::vector<AtomRecord> random_atoms(std::size_t count, double width, unsigned seed) {
  std::mt19937 random(seed);
  std::uniform_real_distribution<double> coordinate(-width, width);
  std::vector<AtomRecord> atoms;
  for (std::size_t i = 0; i < count; ++i)
    atoms.push_back({"H", coordinate(random), coordinate(random), coordinate(random)});
  return atoms;
}

double distance(const AtomRecord& left, const AtomRecord& right) {
  return std::hypot(left.x - right.x, left.y - right.y, left.z - right.z);
}

/// The atoms that are close to one before them, which was not close itself, by comparing all.
std::vector<ClosePair> close_by_pairs(const std::vector<AtomRecord>& atoms, double limit) {
  std::vector<ClosePair> close;
  std::vector<std::size_t> apart;
  for (std::size_t i = 0; i < atoms.size(); ++i) {
    const auto first = std::find_if(apart.begin(), apart.end(), [&](std::size_t other) {
      return distance(atoms[other], atoms[i]) < limit;
    });
    if (first == apart.end()) {
      apart.push_back(i);
    } else {
      close.push_back({*first, i, distance(atoms[*first], atoms[i])});
    }
  }
  return close;
}

TEST(CloseAtoms, AreThoseThatComparingAllPairsFinds) {
  for (unsigned seed = 1; seed <= 20; ++seed) {
    const std::vector<AtomRecord> atoms = random_atoms(300, seed % 2 == 0 ? 1.0 : 2.0, seed);
    const std::vector<ClosePair> expected = close_by_pairs(atoms, 0.3);
    EXPECT_FALSE(expected.empty());
    EXPECT_EQ(find_close_atoms(atoms, 0.3), expected);
  }
}

TEST(CloseAtoms, AreFoundAmongSoManyThatCellsShareAPlaceOfTheTable) {
  const std::vector<AtomRecord> atoms = random_atoms(4000, 20.0, 1);
  const std::vector<ClosePair> expected = close_by_pairs(atoms, 0.3);
  EXPECT_FALSE(expected.empty());
  EXPECT_EQ(find_close_atoms(atoms, 0.3), expected);
}

TEST(CloseAtoms, AreNotThoseAtExactlyTheLimit) {
  EXPECT_THAT(find_close_atoms({{"H", 0, 0, 0}, {"H", 0.25, 0, 0}}, 0.25), testing::IsEmpty());
}

TEST(CloseAtoms, AreFoundOnBothSidesOfZeroAndFarAway) {
  EXPECT_THAT(find_close_atoms({{"H", -0.125, 0, 0}, {"H", 0.125, 0, 0}}, 0.5),
              testing::ElementsAre(ClosePair{0, 1, 0.25}));
  EXPECT_THAT(find_close_atoms({{"H", 1e18, 0, 0}, {"H", -1e300, 0, 0}, {"H", 1e18, 0.25, 0}}, 0.5),
              testing::ElementsAre(ClosePair{0, 2, 0.25}));
}

TEST(CloseAtoms, AreNotThoseWithoutAFiniteCoordinate) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_THAT(find_close_atoms({{"H", nan, 0, 0},
                                {"H", nan, 0, 0},
                                {"H", 0, infinity, 0},
                                {"H", 0, infinity, 0},
                                {"H", 0, 0, -infinity},
                                {"H", 0, 0, 0}},
                               0.3),
              testing::IsEmpty());
}

TEST(CloseAtoms, AreNumberedWithThoseThatHaveNoFiniteCoordinate) {
  EXPECT_THAT(
      find_close_atoms(
          {{"H", infinity, 0, 0}, {"H", 0, 0, 0}, {"H", infinity, 0, 0}, {"H", 0, 0, 0.25}}, 0.3),
      testing::ElementsAre(ClosePair{1, 3, 0.25}));
}

TEST(CloseAtoms, NameTheFirstAtomOfManyInOnePlace) {
  EXPECT_THAT(find_close_atoms({{"H", 1, 1, 1}, {"H", 1, 1, 1}, {"H", 1, 1, 1}}, 0.3),
              testing::ElementsAre(ClosePair{0, 1, 0.0}, ClosePair{0, 2, 0.0}));
}

}  // namespace

}  // namespace kelp::input::quill::lint
