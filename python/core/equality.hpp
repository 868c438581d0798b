#ifndef KELP_INPUT_QUILL_PYTHON_EQUALITY_HPP
#define KELP_INPUT_QUILL_PYTHON_EQUALITY_HPP

#include "kelp/input/quill/document.hpp"

namespace kelp::input::quill::python {

/// Whether two parts of documents are equal, by the rules of <lossless/equality.hpp>.
bool is_same(const CommandParameter& left, const CommandParameter& right);
bool is_same(const GeometryBlock& left, const GeometryBlock& right);
bool is_same(const QuillInput& left, const QuillInput& right);

}  // namespace kelp::input::quill::python

#endif  // KELP_INPUT_QUILL_PYTHON_EQUALITY_HPP
