#ifndef KELP_INPUT_QUILL_TESTS_SUPPORT_PRINTING_HPP
#define KELP_INPUT_QUILL_TESTS_SUPPORT_PRINTING_HPP

#include <iosfwd>

#include "kelp/input/quill/quill.hpp"

// How GoogleTest shows documents in its messages: every member, with the bytes of strings escaped.

namespace kelp::input::quill {

void PrintTo(const CommandParameter& parameter, std::ostream* out);
void PrintTo(const HeaderCommand& command, std::ostream* out);
void PrintTo(const AtomRecord& atom, std::ostream* out);
void PrintTo(const GeometryBlock& geometry, std::ostream* out);
void PrintTo(const PostCommand& command, std::ostream* out);
void PrintTo(const QuillInput& input, std::ostream* out);
void PrintTo(const ParseResult& result, std::ostream* out);
void PrintTo(const LineRecord& line, std::ostream* out);

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_TESTS_SUPPORT_PRINTING_HPP
