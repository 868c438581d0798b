#ifndef KELP_INPUT_QUILL_TOOL_SUMMARY_PART_WORDS_HPP
#define KELP_INPUT_QUILL_TOOL_SUMMARY_PART_WORDS_HPP

#include <string>

#include "kelp/input/quill/document.hpp"

namespace kelp::input::quill::tool {

/// Returns what a geometry consists of: "3 atoms, H2O", "2 XYZ files", "a trajectory", "none".
std::string content_words(const GeometryBlock& geometry);

/// Returns what a post-processing line is about: "bond 1 2", "angle 2 1 3, value 120, 12 steps",
/// the path of a post file, the text of a raw line.
std::string content_words(const PostCommand& command);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_SUMMARY_PART_WORDS_HPP
