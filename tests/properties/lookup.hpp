#ifndef KELP_INPUT_QUILL_TESTS_PROPERTIES_LOOKUP_HPP
#define KELP_INPUT_QUILL_TESTS_PROPERTIES_LOOKUP_HPP

#include <string_view>

#include "kelp/input/quill/quill.hpp"

namespace kelp::input::quill {

/// The ways to ask for commands by a name agree: has_command(), both forms of find_command(), and
/// the names in command_names(). Throws a Violation.
void check_lookup(QuillInput& document, std::string_view name);

/// The same for every name that the document stores, for the names of tasks, and for no name.
void check_every_lookup(QuillInput document);

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_TESTS_PROPERTIES_LOOKUP_HPP
