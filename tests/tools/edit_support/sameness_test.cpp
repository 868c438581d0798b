#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>

#include "edit_support/document_difference.hpp"

namespace kelp::input::quill::edit_support {

TEST(Sameness, OfCommandsCountsEveryMember) {
  const HeaderCommand command("opt", HeaderCommandKind::ParameterList, "v", {{"a", "1"}, {"b"}});
  EXPECT_TRUE(is_same(command, command));
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
    EXPECT_FALSE(is_same(command, other));
    EXPECT_FALSE(is_same(other, command));
  }
}

TEST(Sameness, OfAtomsCountsEveryMemberToTheBit) {
  const double not_a_number = std::numeric_limits<double>::quiet_NaN();
  const AtomRecord atom{"O", 0.0, not_a_number, 2.0};
  EXPECT_TRUE(is_same(atom, atom));
  EXPECT_FALSE(is_same(atom, {"o", 0.0, not_a_number, 2.0}));
  EXPECT_FALSE(is_same(atom, {"O", -0.0, not_a_number, 2.0}));
  EXPECT_FALSE(is_same(atom, {"O", 0.0, 0.0, 2.0}));
  EXPECT_FALSE(is_same(atom, {"O", 0.0, not_a_number, std::nextafter(2.0, 3.0)}));
}

TEST(Sameness, OfPostLinesCountsTheTextOfRawOnesOnly) {
  const PostCommand scan(PostCommandKind::Scan, {1, 2}, 1.5, 10, "", "S 1 2 1.5 10");
  PostCommand other = scan;
  other.raw_text = "s 1 2 1.5 10";
  EXPECT_TRUE(is_same(scan, other));
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
    EXPECT_FALSE(is_same(scan, other));
    EXPECT_FALSE(is_same(other, scan));
  }
  PostCommand raw;
  raw.raw_text = "a";
  EXPECT_TRUE(is_same(raw, raw));
  EXPECT_FALSE(is_same(raw, PostCommand()));
}

}  // namespace kelp::input::quill::edit_support
