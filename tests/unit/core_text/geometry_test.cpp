#include "kelp/core/geometry.hpp"

#include <gtest/gtest.h>

#include <type_traits>
#include <utility>

namespace kelp::core {
namespace {

static_assert(std::is_aggregate_v<Atom>);
static_assert(std::is_aggregate_v<Geometry>);
static_assert(std::is_nothrow_move_constructible_v<Atom>);
static_assert(std::is_nothrow_move_assignable_v<Atom>);
static_assert(std::is_nothrow_move_constructible_v<Geometry>);
static_assert(std::is_nothrow_move_assignable_v<Geometry>);

TEST(Atom, HoldsItsSymbolAndThenItsCoordinates) {
  const Atom atom{"O", 0.25, -0.5, 0.1173};
  EXPECT_EQ(atom.symbol, "O");
  EXPECT_EQ(atom.x, 0.25);
  EXPECT_EQ(atom.y, -0.5);
  EXPECT_EQ(atom.z, 0.1173);
}

TEST(Atom, IsAtTheOriginAtFirst) {
  const Atom atom;
  EXPECT_EQ(atom.symbol, "");
  EXPECT_EQ(atom.x, 0.0);
  EXPECT_EQ(atom.y, 0.0);
  EXPECT_EQ(atom.z, 0.0);
}

TEST(Geometry, HoldsItsAtomsInOrder) {
  const Geometry hydrogen{{{"H", 0.0, 0.0, 0.0}, {"D", 0.0, 0.0, 0.74}}};
  ASSERT_EQ(hydrogen.atoms.size(), 2U);
  EXPECT_EQ(hydrogen.atoms[0].symbol, "H");
  EXPECT_EQ(hydrogen.atoms[1].symbol, "D");
  EXPECT_EQ(hydrogen.atoms[1].z, 0.74);
}

TEST(Geometry, IsCopiedDeeply) {
  const Geometry original{{{"H", 0.0, 0.0, 0.0}}};
  Geometry copy = original;
  copy.atoms[0].symbol = "He";
  EXPECT_EQ(original.atoms[0].symbol, "H");
}

}  // namespace
}  // namespace kelp::core
