#ifndef KELP_INPUT_QUILL_PYTHON_TREE_HPP
#define KELP_INPUT_QUILL_PYTHON_TREE_HPP

#include <mutex>
#include <shared_mutex>
#include <unordered_set>
#include <utility>

#include "kelp/input/quill/document.hpp"

// The document that several Python objects share: the one that stands for all of it, and those that
// stand for parts of it.
//
// All functions but the bodies of `reading` run while the interpreter is locked. A change also
// waits until no thread reads the document without that lock, so that a long read can continue
// while other threads run Python.

namespace kelp::input::quill::python {

template <typename Part>
class Entry;

/// The Python objects that show entries of one kind of list.
template <typename Part>
using Entries = std::unordered_set<Entry<Part>*>;

struct Tree {
  QuillInput input;

  Entries<HeaderCommand> commands;
  Entries<CommandParameter> parameters;  // of every command
  Entries<AtomRecord> atoms;
  Entries<PostCommand> post_commands;

  std::shared_mutex in_use;
};

/// Keeps readers out of a document for as long as it lives.
class Change {
 public:
  explicit Change(Tree& tree) : lock_(tree.in_use) {}

 private:
  std::unique_lock<std::shared_mutex> lock_;
};

}  // namespace kelp::input::quill::python

#endif  // KELP_INPUT_QUILL_PYTHON_TREE_HPP
