#include "language_server/facts/snippets.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kelp::input::quill::language_server {

namespace {

using testing::ElementsAre;

TEST(Snippets, OfAFormWithoutBracketsThereIsOneVariant) {
  EXPECT_THAT(variants_of("B i j"), ElementsAre("B i j"));
  EXPECT_THAT(variants_of("POST"), ElementsAre("POST"));
}

TEST(Snippets, EveryPairOfBracketsMakesALongerVariant) {
  EXPECT_THAT(variants_of("S i j [k [l]] value steps"),
              ElementsAre("S i j value steps", "S i j k value steps", "S i j k l value steps"));
}

TEST(Snippets, HaveAPlaceForEveryWordAfterTheFirst) {
  EXPECT_EQ(snippet_of("B i j"), "B ${1:i} ${2:j}");
  EXPECT_EQ(snippet_of("POST path"), "POST ${1:path}");
  EXPECT_EQ(snippet_of("POST"), "POST");
}

}  // namespace

}  // namespace kelp::input::quill::language_server
