#ifndef KELP_INPUT_QUILL_TESTS_PROPERTIES_EDITING_HPP
#define KELP_INPUT_QUILL_TESTS_PROPERTIES_EDITING_HPP

#include <string_view>

namespace kelp::input::quill {

/// Makes a document and up to 64 operations out of the bytes. After each, an editor holds what the
/// plain work on vectors gives, also where the arguments refer to its own document; so does a
/// builder, as long as all operations are among those that it has. Throws a Violation.
void check_edits(std::string_view bytes);

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_TESTS_PROPERTIES_EDITING_HPP
