#ifndef KELP_INPUT_QUILL_TESTS_LOSSLESS_EDITING_SURGICAL_CASE_HPP
#define KELP_INPUT_QUILL_TESTS_LOSSLESS_EDITING_SURGICAL_CASE_HPP

#include <gtest/gtest.h>

#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

#include "lossless/properties/edits.hpp"

namespace kelp::input::quill::lossless {

/// A row of a table of edits: the text before, the edits, the text after and the lines reported:
/// "3" for a changed line with the same number before and after, "3>4" for one that moved, "+2" for
/// one that is new as line 2, "-5" for the removed line 5. A row with a refusal says what the edit
/// would have made of the text and why it must not be used.
struct SurgicalCase {
  std::string_view name;
  std::string before;
  std::vector<Edit> edits;
  std::string after;
  std::string changes;
  std::string refusal = {};
};

void PrintTo(const SurgicalCase& row, std::ostream* out);

/// Applies the edits and expects everything that the row says, and that the text after, when it is
/// not refused, reads back as the document that the edits make.
void expect_surgery(const SurgicalCase& row);

std::string row_name(const testing::TestParamInfo<SurgicalCase>& info);

PostCommand raw_line(std::string text);

}  // namespace kelp::input::quill::lossless

#endif  // KELP_INPUT_QUILL_TESTS_LOSSLESS_EDITING_SURGICAL_CASE_HPP
