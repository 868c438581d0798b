#ifndef KELP_INPUT_QUILL_TESTS_PROPERTIES_LOOKUP_HPP
#define KELP_INPUT_QUILL_TESTS_PROPERTIES_LOOKUP_HPP

#include <string_view>

#include "kelp/input/quill/quill.hpp"

namespace kelp::input::quill {

/// Asked for commands by a name, `document` finds those that `stored` has, in every way to ask:
/// has_command() and both forms of find_command(). `stored` is the same document, unless a test
/// shows that another one is noticed. Throws a Violation.
void check_lookup(QuillInput& document, const QuillInput& stored, std::string_view name);

/// The same for every name that is stored, for the names of tasks, and for no name; and the list of
/// names is right.
void check_every_lookup(QuillInput document, const QuillInput& stored);

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_TESTS_PROPERTIES_LOOKUP_HPP
