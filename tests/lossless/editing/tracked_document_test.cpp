#include "kelp/input/quill/lossless/tracked_document.hpp"

#include <gtest/gtest.h>

#include <cstddef>
#include <optional>
#include <vector>

#include "kelp/input/quill/quill.hpp"
#include "support/comparison.hpp"
#include "support/printing.hpp"

namespace kelp::input::quill::lossless {

namespace {

using Origins = std::vector<std::optional<std::size_t>>;

QuillInput input_of_a_scan() {
  return parse_string("#opt(tight)\n#model = m1\n#opt\n0 1\nHe 0 0 0\n\nC 1\nPOST a\nC 1\n").input;
}

TEST(TrackedDocument, KeepsTheOriginOfACommandThatIsReplaced) {
  const QuillInput before = input_of_a_scan();
  TrackedDocument document(before);
  document.replace_command(2, HeaderCommand("freq"));
  QuillInput expected = before;
  expected.commands[2] = HeaderCommand("freq");
  EXPECT_EQ(document.document(), expected);
  EXPECT_EQ(document.origins(), (Origins{0, 1, 2}));
}

TEST(TrackedDocument, FindsAReplacedCommandByItsNewName) {
  TrackedDocument document(input_of_a_scan());
  document.replace_command(0, HeaderCommand("sp"));
  EXPECT_TRUE(document.remove_command("opt"));
  EXPECT_EQ(document.origins(), (Origins{0, 1}));
  EXPECT_EQ(document.document().commands[0].name, "sp");
}

TEST(TrackedDocument, ReplacesACommandThatWasAdded) {
  TrackedDocument document(input_of_a_scan());
  document.add_command(HeaderCommand("sp"));
  document.replace_command(3, HeaderCommand("ts"));
  EXPECT_EQ(document.document().commands[3].name, "ts");
  EXPECT_EQ(document.origins(), (Origins{0, 1, 2, std::nullopt}));
}

TEST(TrackedDocument, RemovesThePostProcessingLinesThatAreMarked) {
  const QuillInput before = input_of_a_scan();
  TrackedDocument document(before);
  document.remove_post_commands({true, false, true});
  QuillInput expected = before;
  expected.post_commands = {before.post_commands[1]};
  EXPECT_EQ(document.document(), expected);
  EXPECT_EQ(document.origins(), (Origins{0, 1, 2}));
  EXPECT_TRUE(document.is_post_command_removed(0));
  EXPECT_FALSE(document.is_post_command_removed(1));
  EXPECT_TRUE(document.is_post_command_removed(2));
}

TEST(TrackedDocument, HasRemovedNoLineThatNobodyMarked) {
  TrackedDocument document(input_of_a_scan());
  for (const std::size_t index : {0U, 2U, 3U})
    EXPECT_FALSE(document.is_post_command_removed(index));
  document.remove_post_commands({false, false, true});
  EXPECT_FALSE(document.is_post_command_removed(3));
}

TEST(TrackedDocument, RemovesEveryPostProcessingLineAtAnyTime) {
  const QuillInput before = input_of_a_scan();
  TrackedDocument document(before);
  document.add_bond_constraint(1, 2);
  document.clear_post_commands();
  EXPECT_TRUE(document.document().post_commands.empty());
  document.add_bond_constraint(3, 4);
  document.clear_post_commands();
  EXPECT_TRUE(document.document().post_commands.empty());
  document.clear_post_commands();
  for (std::size_t index = 0; index < before.post_commands.size(); ++index)
    EXPECT_TRUE(document.is_post_command_removed(index));
}

}  // namespace

}  // namespace kelp::input::quill::lossless
