#ifndef KELP_INPUT_QUILL_TESTS_PROPERTIES_COUNTED_LINES_HPP
#define KELP_INPUT_QUILL_TESTS_PROPERTIES_COUNTED_LINES_HPP

#include <string_view>
#include <vector>

#include "kelp/input/quill/quill.hpp"

namespace kelp::input::quill::obvious {

/// The records of the lines of a text, made only from the result of reading it. No line is read
/// again: commands, charge line, coordinate lines and post-processing lines follow one another in a
/// fixed order, the result says how many there are of each, and the warnings name the lines that
/// left nothing in the document.
std::vector<LineRecord> count_lines(std::string_view text, const ParseResult& result);

}  // namespace kelp::input::quill::obvious

#endif  // KELP_INPUT_QUILL_TESTS_PROPERTIES_COUNTED_LINES_HPP
