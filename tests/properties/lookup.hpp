#ifndef KELP_INPUT_QUILL_TESTS_PROPERTIES_LOOKUP_HPP
#define KELP_INPUT_QUILL_TESTS_PROPERTIES_LOOKUP_HPP

#include <string_view>

#include "kelp/input/quill/quill.hpp"

namespace kelp::input::quill {

/// For a name, has_command() and both forms of find_command() of `document` find the commands that
/// `stored` has. `stored` is the same document, except in a test that a difference is noticed.
/// Throws a Violation.
void check_lookup(QuillInput& document, const QuillInput& stored, std::string_view name);

/// The same for every name that is stored, for the names of tasks, and for no name; and the list of
/// names is right.
void check_every_lookup(QuillInput document, const QuillInput& stored);

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_TESTS_PROPERTIES_LOOKUP_HPP
