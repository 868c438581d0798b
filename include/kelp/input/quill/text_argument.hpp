#ifndef KELP_INPUT_QUILL_TEXT_ARGUMENT_HPP
#define KELP_INPUT_QUILL_TEXT_ARGUMENT_HPP

/// @file
/// What a function that takes a text does not accept.
///
///     editor.set_parameter("opt", "maxiter", "100");  // a text
///     editor.set_parameter("opt", "maxiter", 100);    // does not compile
///     editor.set_flag(nullptr);                       // does not compile
///
/// C++ would convert `nullptr`, `NULL` and the literal `0` to a null pointer to characters, and a
/// text made of that ends the program or throws. Each member function that takes a text therefore
/// has a deleted overload for null pointers and numbers, and its address is taken with its type:
/// `bool (QuillInput::*ask)(std::string_view) const = &QuillInput::has_command;`. Free functions,
/// such as parse_string(), do not have such an overload, so that they can be passed on by their
/// name; there, compilers warn. A null pointer in a variable of type `const char*` is not noticed.

#include <type_traits>

namespace kelp::input::quill {

/// Names a type when at least one of these arguments is a null pointer or a number, and is an error
/// otherwise; a deleted overload with this as a default argument is considered only then.
template <typename... Arguments>
using RefusedAsText = std::enable_if_t<(
    (std::is_null_pointer_v<Arguments> || std::is_arithmetic_v<Arguments>) || ...)>;

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_TEXT_ARGUMENT_HPP
