#ifndef KELP_INPUT_QUILL_TESTS_PROPERTIES_EDITING_HPP
#define KELP_INPUT_QUILL_TESTS_PROPERTIES_EDITING_HPP

#include <string_view>

#include "properties/edit_operation.hpp"

namespace kelp::input::quill {

/// Does one operation to an editor, and to the document that it holds as plain work on vectors:
/// both give the same, and tell alike whether something was removed. `bytes` is what a Violation
/// shows.
void check_operation(const EditOperation& operation, InputEditor& editor, QuillInput& expected,
                     std::string_view bytes);

/// Does it to a builder, which then holds what is expected.
void check_building(const EditOperation& operation, InputBuilder& builder,
                    const QuillInput& expected, std::string_view bytes);

/// Makes a document and up to 64 operations out of the bytes. After each, an editor holds what the
/// plain work on vectors gives, also where the arguments refer to its own document; so does a
/// builder, as long as all operations are among those that it has. Throws a Violation.
void check_edits(std::string_view bytes);

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_TESTS_PROPERTIES_EDITING_HPP
