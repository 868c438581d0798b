#ifndef KELP_INPUT_QUILL_TESTS_PROPERTIES_READING_HPP
#define KELP_INPUT_QUILL_TESTS_PROPERTIES_READING_HPP

#include <string_view>

#include "kelp/input/quill/quill.hpp"

// What holds between any text and what is read from it. Every check throws a Violation.

namespace kelp::input::quill {

/// What reads a text: the library, unless a test puts a wrong reader in its place.
using Reader = ParseResult(std::string_view);

/// Reading succeeds.
void check_outcome(std::string_view text, const ParseResult& result);

/// Every line that is not blank has become exactly one piece of the document or one warning that
/// says that it was dropped.
void check_that_no_line_is_lost(std::string_view text, const ParseResult& result);

/// Every warning but the last names a line of the text, in the order of the lines; the last one may
/// say instead that the coordinate section is missing, and does so exactly if it is.
void check_warnings(std::string_view text, const ParseResult& result);

/// The geometry holds what its kind says and nothing else; symbols are spelled as elements are.
void check_geometry(std::string_view text, const ParseResult& result);

/// Every post-processing line has the parts that its kind calls for and no other ones.
void check_post_commands(std::string_view text, const ParseResult& result);

/// All of the above.
void check_result(std::string_view text, const ParseResult& result);

/// The records of the lines cover every byte of the text, in order, and are those that counting
/// gives; the result together with them is that of parse_string().
void check_lines(std::string_view text, const ParsedLines& parsed);

/// The document and the warnings do not depend on blanks around lines, on the kind of line ends, on
/// one more line end, and, but for the numbers of lines, on blank lines.
void check_that_layout_does_not_matter(std::string_view text, Reader* read = parse_string);

/// The result is that of the reader in obvious_reader.hpp.
void check_against_obvious_reader(std::string_view text, const ParseResult& result);

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_TESTS_PROPERTIES_READING_HPP
