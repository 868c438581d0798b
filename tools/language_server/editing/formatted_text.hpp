#ifndef KELP_INPUT_QUILL_LANGUAGE_SERVER_EDITING_FORMATTED_TEXT_HPP
#define KELP_INPUT_QUILL_LANGUAGE_SERVER_EDITING_FORMATTED_TEXT_HPP

#include <string>
#include <vector>

#include "kelp/input/quill/lossless/read_text.hpp"
#include "lint/finding.hpp"

namespace kelp::input::quill::language_server {

/// Returns the canonical text of an input, after the proof that nothing is lost by it: numbers may
/// change as "fmt" accepts it, which does not ask the project. Throws ResponseError, RequestFailed,
/// with the reason, when something would be lost.
std::string formatted_text(const lossless::ReadText& read);

/// Returns what of the canonical text changes the lines in a range, after the proof that the text
/// with these changes alone says the same. Throws as formatted_text() does.
std::vector<lint::ByteEdit> formatting_of_range(const lossless::ReadText& read,
                                                const lint::Range& range);

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_LANGUAGE_SERVER_EDITING_FORMATTED_TEXT_HPP
