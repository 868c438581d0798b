#ifndef KELP_INPUT_QUILL_TESTS_SUPPORT_LONG_DOCUMENT_HPP
#define KELP_INPUT_QUILL_TESTS_SUPPORT_LONG_DOCUMENT_HPP

#include <string>
#include <string_view>

#include "kelp/input/quill/quill.hpp"

// Documents in which every string is on the heap, so that copying any of them takes memory.

namespace kelp::input::quill {

/// Returns the word, made longer than what fits into the inside of a string.
std::string longer(std::string_view word);

/// A document with several entries in every list: the commands "opt" with the parameters "maxiter"
/// and "tight", "basis", an assignment, and "OPT"; two atoms, two files and two post-processing
/// lines.
QuillInput long_document(GeometryKind kind);

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_TESTS_SUPPORT_LONG_DOCUMENT_HPP
