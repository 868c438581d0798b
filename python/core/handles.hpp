#ifndef KELP_INPUT_QUILL_PYTHON_HANDLES_HPP
#define KELP_INPUT_QUILL_PYTHON_HANDLES_HPP

#include <pybind11/pybind11.h>

#include <memory>
#include <shared_mutex>
#include <utility>

#include "core/entry.hpp"
#include "core/tree.hpp"

// What the classes of the Python package hold.

namespace kelp::input::quill::python {

using Command = Entry<HeaderCommand>;
using Parameter = Entry<CommandParameter>;
using Atom = Entry<AtomRecord>;
using PostLine = Entry<PostCommand>;

/// A whole document.
struct Document {
  std::shared_ptr<Tree> tree = std::make_shared<Tree>();
};

/// The coordinates of a document.
struct Coordinates {
  std::shared_ptr<Tree> tree = std::make_shared<Tree>();
};

inline std::shared_ptr<Document> new_document(QuillInput input) {
  auto document = std::make_shared<Document>();
  document->tree->input = std::move(input);
  return document;
}

/// Calls a function with a document while other threads may run Python. Such a function must not
/// use objects of Python.
template <typename Function>
auto reading(const std::shared_ptr<Tree>& tree, Function function) {
  const pybind11::gil_scoped_release release;
  const std::shared_lock<std::shared_mutex> lock(tree->in_use);
  return function(std::as_const(tree->input));
}

}  // namespace kelp::input::quill::python

#endif  // KELP_INPUT_QUILL_PYTHON_HANDLES_HPP
