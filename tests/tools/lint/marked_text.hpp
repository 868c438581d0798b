#ifndef KELP_INPUT_QUILL_TESTS_TOOLS_LINT_MARKED_TEXT_HPP
#define KELP_INPUT_QUILL_TESTS_TOOLS_LINT_MARKED_TEXT_HPP

#include <string>
#include <string_view>

#include "lint/lint.hpp"

// Inputs and findings in one text, so that columns are seen. Below a line, each of its findings has
// a line with carets under the place, its code and its message:
//
//   H 0 0 1,5
//         ^^^ QL104 this line ended the atoms after 1 atom: '1,5' is not a number
//
// A place without a byte in it is shown as "<". Columns count bytes.

namespace kelp::input::quill::lint {

/// Returns the text without its marks.
std::string without_marks(std::string_view marked);

/// Returns the text with marks for these findings.
std::string with_marks(std::string_view text, const Findings& findings);

/// Returns the text of a marked one, with marks for what is found in it.
std::string marked_anew(std::string_view marked, const Options& options = Options());

/// One row of a table: a text with its marks.
struct MarkedRow {
  std::string_view name;
  std::string marked;
};

inline void PrintTo(const MarkedRow& row, std::ostream* out) { *out << row.name; }

}  // namespace kelp::input::quill::lint

#endif  // KELP_INPUT_QUILL_TESTS_TOOLS_LINT_MARKED_TEXT_HPP
