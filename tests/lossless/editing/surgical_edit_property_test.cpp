// What must hold for any text and any edits, shown on thousands of them.

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "kelp/input/quill/quill.hpp"
#include "lossless/editing/random_edits.hpp"
#include "lossless/properties/surgery.hpp"
#include "properties/violation.hpp"
#include "support/comparison.hpp"

namespace kelp::input::quill::lossless {

namespace {

struct Tally {
  int proved = 0;
  int refused_for_quoting = 0;
  int refused_with_line = 0;
  int refused_otherwise = 0;
  int unchanged = 0;
};

void count(const std::string& text, const EditOutcome& edit, Tally& tally) {
  if (edit.holds()) {
    ++tally.proved;
  } else if (!edit.quoting_problems.empty()) {
    ++tally.refused_for_quoting;
  } else if (edit.proof.line()) {
    ++tally.refused_with_line;
  } else {
    ++tally.refused_otherwise;
  }
  if (without_source_lines(edit.wanted) == without_source_lines(parse_string(text).input))
    ++tally.unchanged;
}

}  // namespace

TEST(SurgicalEditProperty, ThousandsOfEditsChangeOnlyTheLinesTheyReportAndReadBackOrAreRefused) {
  constexpr int seeds = 4000;
  Tally tally;
  for (std::uint32_t seed = 0; seed < seeds; ++seed) {
    RandomEdits random(seed);
    const std::string text = random.text();
    const std::vector<Edit> edits = random.edits();
    try {
      const EditOutcome edit = checked_edit(text, edits);
      check_proofs(text, edit.wanted);
      count(text, edit, tally);
    } catch (const Violation& violation) {
      FAIL() << "seed " << seed << ": " << violation.what();
    }
  }
  // No outcome is so rare that its share of the properties goes untested.
  EXPECT_GT(tally.proved, seeds / 2);
  EXPECT_GT(tally.refused_for_quoting, seeds / 10);
  EXPECT_GT(tally.refused_with_line, seeds / 10);
  EXPECT_GT(tally.refused_otherwise, seeds / 100);
  EXPECT_GT(tally.unchanged, seeds / 20);
}

}  // namespace kelp::input::quill::lossless
