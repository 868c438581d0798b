#ifndef KELP_INPUT_QUILL_PYTHON_EDITING_HPP
#define KELP_INPUT_QUILL_PYTHON_EDITING_HPP

#include <memory>
#include <mutex>
#include <shared_mutex>
#include <utility>

#include "core/handles.hpp"
#include "core/text_edit.hpp"
#include "kelp/input/quill/editor.hpp"

namespace kelp::input::quill::python {

/// Which entries of a document an operation of the editor may remove or replace.
enum class Touches { Nothing, Parameters, Commands, Atoms, PostLines };

/// Lets these entries stand alone where Python objects show them.
inline void let_go(Tree& tree, Touches touches) {
  if (touches == Touches::Parameters) let_stand_alone<CommandParameter>(tree);
  if (touches == Touches::Commands) let_commands_stand_alone(tree);
  if (touches == Touches::Atoms) let_stand_alone<AtomRecord>(tree);
  if (touches == Touches::PostLines) let_stand_alone<PostCommand>(tree);
}

/// The library's editor on the document of a tree. The document is moved into the editor and back,
/// which leaves every entry where it is in memory.
class TreeEditor {
 public:
  explicit TreeEditor(Tree& tree) : tree_(tree), editor_(std::move(tree.input)) {}
  TreeEditor(const TreeEditor&) = delete;
  TreeEditor& operator=(const TreeEditor&) = delete;
  ~TreeEditor() { tree_.input = std::move(editor_).document(); }

  InputEditor& editor() { return editor_; }

 private:
  Tree& tree_;
  InputEditor editor_;
};

/// Calls an operation of the editor.
template <typename Operation>
auto edit(const Document& document, Touches touches, Operation operation) {
  const std::shared_ptr<Tree> tree = document.tree;
  const Change change(*tree);
  let_go(*tree, touches);
  TreeEditor editing(*tree);
  return operation(editing.editor());
}

/// Calls it for a text under edit, of which no object shows an entry.
template <typename Operation>
auto edit(TextEdit& text, Touches /*touches*/, Operation operation) {
  const std::unique_lock<std::shared_mutex> lock(text.in_use);
  return operation(text.document);
}

/// Which entries go when an atom is added: all, if they are no atoms.
inline Touches touches_of_added_atom(const Document& document) {
  const bool are_atoms = document.tree->input.geometry.kind == GeometryKind::Atoms;
  return are_atoms ? Touches::Nothing : Touches::Atoms;
}
inline Touches touches_of_added_atom(const TextEdit& /*text*/) { return Touches::Nothing; }

}  // namespace kelp::input::quill::python

#endif  // KELP_INPUT_QUILL_PYTHON_EDITING_HPP
