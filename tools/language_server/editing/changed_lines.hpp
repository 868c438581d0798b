#ifndef KELP_INPUT_QUILL_LANGUAGE_SERVER_EDITING_CHANGED_LINES_HPP
#define KELP_INPUT_QUILL_LANGUAGE_SERVER_EDITING_CHANGED_LINES_HPP

#include <string_view>
#include <vector>

#include "lint/finding.hpp"

namespace kelp::input::quill::language_server {

/// Returns the edits that make one text of another: whole lines, and only those that differ.
std::vector<lint::ByteEdit> changed_lines(std::string_view old_text, std::string_view new_text);

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_LANGUAGE_SERVER_EDITING_CHANGED_LINES_HPP
