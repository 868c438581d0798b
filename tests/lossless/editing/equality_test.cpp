#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>

#include "kelp/input/quill/lossless/equality.hpp"

namespace kelp::input::quill::lossless {

TEST(Equality, OfCommandsCountsEveryMember) {
  const HeaderCommand command("opt", HeaderCommandKind::ParameterList, "v", {{"a", "1"}, {"b"}});
  EXPECT_TRUE(is_equal(command, command));
  const std::function<void(HeaderCommand&)> changes[] = {
      [](HeaderCommand& other) { other.name = "Opt"; },
      [](HeaderCommand& other) { other.kind = HeaderCommandKind::Flag; },
      [](HeaderCommand& other) { other.value.reset(); },
      [](HeaderCommand& other) { other.parameters[0].name = "A"; },
      [](HeaderCommand& other) { other.parameters[1].value = ""; },
      [](HeaderCommand& other) { other.parameters.pop_back(); },
  };
  for (const auto& change : changes) {
    HeaderCommand other = command;
    change(other);
    EXPECT_FALSE(is_equal(command, other));
    EXPECT_FALSE(is_equal(other, command));
  }
}

TEST(Equality, OfAtomsCountsEveryMemberToTheBit) {
  const double not_a_number = std::numeric_limits<double>::quiet_NaN();
  const AtomRecord atom{"O", 0.0, not_a_number, 2.0};
  EXPECT_TRUE(is_equal(atom, atom));
  EXPECT_FALSE(is_equal(atom, {"o", 0.0, not_a_number, 2.0}));
  EXPECT_FALSE(is_equal(atom, {"O", -0.0, not_a_number, 2.0}));
  EXPECT_FALSE(is_equal(atom, {"O", 0.0, 0.0, 2.0}));
  EXPECT_FALSE(is_equal(atom, {"O", 0.0, not_a_number, std::nextafter(2.0, 3.0)}));
}

TEST(Equality, OfPostLinesCountsTheTextOfRawOnesOnly) {
  const PostCommand scan(PostCommandKind::Scan, {1, 2}, 1.5, 10, "", "S 1 2 1.5 10");
  PostCommand other = scan;
  other.raw_text = "s 1 2 1.5 10";
  EXPECT_TRUE(is_equal(scan, other));
  const std::function<void(PostCommand&)> changes[] = {
      [](PostCommand& changed) { changed.kind = PostCommandKind::Raw; },
      [](PostCommand& changed) {
        changed.atom_indices = {1, 3};
      },
      [](PostCommand& changed) { changed.scan_value = 1.25; },
      [](PostCommand& changed) { changed.scan_value.reset(); },
      [](PostCommand& changed) { changed.scan_steps.reset(); },
      [](PostCommand& changed) { changed.post_file = "x"; },
  };
  for (const auto& change : changes) {
    other = scan;
    change(other);
    EXPECT_FALSE(is_equal(scan, other));
    EXPECT_FALSE(is_equal(other, scan));
  }
  PostCommand raw;
  raw.raw_text = "a";
  EXPECT_TRUE(is_equal(raw, raw));
  EXPECT_FALSE(is_equal(raw, PostCommand()));
}

}  // namespace kelp::input::quill::lossless
