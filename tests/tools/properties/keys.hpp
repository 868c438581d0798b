#ifndef KELP_INPUT_QUILL_TESTS_TOOLS_PROPERTIES_KEYS_HPP
#define KELP_INPUT_QUILL_TESTS_TOOLS_PROPERTIES_KEYS_HPP

#include <string_view>

namespace kelp::input::quill::tool {

/// A text is a key or a UsageError that shows it; a key can be spelled so that it reads as the same
/// key, and a setting is its key, "=" and its value. Throws a Violation.
void check_key(std::string_view text);

/// A text is the value of each option for a post-processing line, with as many atom numbers as the
/// option says, or a UsageError that names the option. Throws a Violation.
void check_post_arguments(std::string_view text);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TESTS_TOOLS_PROPERTIES_KEYS_HPP
