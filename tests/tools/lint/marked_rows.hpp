#ifndef KELP_INPUT_QUILL_TESTS_TOOLS_LINT_MARKED_ROWS_HPP
#define KELP_INPUT_QUILL_TESTS_TOOLS_LINT_MARKED_ROWS_HPP

#include <gtest/gtest.h>

#include <string>

#include "tools/lint/marked_text.hpp"

namespace kelp::input::quill::lint {

/// A test for each row of a table of marked texts.
class MarkedRows : public testing::TestWithParam<MarkedRow> {
 protected:
  /// Expects that what is found in the text of the row is what is marked in it.
  static void expect_marks(const Options& options = Options()) {
    EXPECT_EQ(marked_anew(GetParam().marked, options), GetParam().marked);
  }
};

inline std::string name_of_row(const testing::TestParamInfo<MarkedRow>& row) {
  return std::string(row.param.name);
}

}  // namespace kelp::input::quill::lint

#endif  // KELP_INPUT_QUILL_TESTS_TOOLS_LINT_MARKED_ROWS_HPP
