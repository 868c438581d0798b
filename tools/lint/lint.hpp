#ifndef KELP_INPUT_QUILL_LINT_LINT_HPP
#define KELP_INPUT_QUILL_LINT_LINT_HPP

// Finds what the reader understood differently from what the author of a text probably meant.
//
//   const lossless::ReadText read = lossless::read_text(text);
//   for (const Finding& finding : find_all(read, Options()))
//     std::cerr << place_of(finding.range.offset, read.lines).line << ": "
//               << words_of(finding).message << '\n';
//
// A text is read once, by the library, and the reader's result says what each line became. The
// functions have no state, and any number of threads may call them at once.

#include <cstddef>
#include <map>
#include <string_view>
#include <vector>

#include "kelp/input/quill/lossless/read_text.hpp"
#include "lint/finding.hpp"
#include "lint/rule.hpp"
#include "lint/source.hpp"

namespace kelp::input::quill::lint {

/// Returns the findings for a text, in the order of their places; those that another one explains
/// are left out. The time is linear in the length of the text.
Findings find_all(const lossless::ReadText& read, const Options& options);

/// Findings of which each rule has only the first ones, and how many more it has, by its code.
struct FirstFindings {
  Findings findings = {};
  std::map<std::string_view, std::size_t> more = {};  // no entry if there are no more
};

/// Returns the same findings, but only the first ones of each rule, so that the memory for them has
/// a limit. A mend of more edits than the limits allow is left out of its finding, too.
FirstFindings find_first(const lossless::ReadText& read, const Options& options,
                         const Limits& limits);

/// Returns the findings of every rule, those that another one explains included.
Findings find_unexplained(const lossless::ReadText& read, const Options& options);

/// A place for people. Lines and columns are counted from 1, and columns count bytes.
struct TextPlace {
  std::size_t line = 1;
  std::size_t column = 1;
};

/// Returns the place of a byte of a text with these lines, or of its end. The end of a text without
/// lines is the first column of line 1. Logarithmic in the number of lines.
TextPlace place_of(std::size_t offset, const std::vector<LineRecord>& lines);

}  // namespace kelp::input::quill::lint

#endif  // KELP_INPUT_QUILL_LINT_LINT_HPP
