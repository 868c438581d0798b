#ifndef KELP_INPUT_QUILL_TOOL_EDITING_CANONICAL_TEXT_HPP
#define KELP_INPUT_QUILL_TOOL_EDITING_CANONICAL_TEXT_HPP

#include <string>
#include <vector>

#include "kelp/input/quill/lossless/quoting.hpp"

namespace kelp::input::quill::tool {

/// The canonical text of a document, with quotes around values that need them, and what cannot be
/// written in it.
struct CanonicalText {
  std::string text = {};
  std::vector<lossless::QuotingProblem> problems = {};
};

CanonicalText canonical_text(const QuillInput& document);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_EDITING_CANONICAL_TEXT_HPP
