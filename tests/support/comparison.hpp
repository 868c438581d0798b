#ifndef KELP_INPUT_QUILL_TESTS_SUPPORT_COMPARISON_HPP
#define KELP_INPUT_QUILL_TESTS_SUPPORT_COMPARISON_HPP

#include "kelp/core/geometry.hpp"
#include "kelp/input/quill/quill.hpp"

// Equality of whole documents, down to the bit pattern of every number: -0.0 differs from 0.0, and
// a NaN equals itself.

namespace kelp::input::quill {

bool operator==(const CommandParameter& left, const CommandParameter& right);
bool operator==(const HeaderCommand& left, const HeaderCommand& right);
bool operator==(const AtomRecord& left, const AtomRecord& right);
bool operator==(const GeometryBlock& left, const GeometryBlock& right);
bool operator==(const PostCommand& left, const PostCommand& right);
bool operator==(const QuillInput& left, const QuillInput& right);
bool operator==(const ParseResult& left, const ParseResult& right);
bool operator==(const LineRecord& left, const LineRecord& right);

template <typename T>
bool operator!=(const T& left, const T& right) {
  return !(left == right);
}

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_TESTS_SUPPORT_COMPARISON_HPP
