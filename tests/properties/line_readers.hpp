#ifndef KELP_INPUT_QUILL_TESTS_PROPERTIES_LINE_READERS_HPP
#define KELP_INPUT_QUILL_TESTS_PROPERTIES_LINE_READERS_HPP

#include <string_view>

namespace kelp::input::quill {

/// Each line reader, by itself and given any text at all as its line, gives what the obvious one
/// gives. Throws a Violation. Needs what the library hides: a program that calls this links its
/// objects.
void check_line_readers(std::string_view line);

/// The same with what the obvious readers make of another line, `expected`, which lets a test see
/// that a wrong answer is noticed.
void check_line_readers(std::string_view line, std::string_view expected);

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_TESTS_PROPERTIES_LINE_READERS_HPP
