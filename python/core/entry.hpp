#ifndef KELP_INPUT_QUILL_PYTHON_ENTRY_HPP
#define KELP_INPUT_QUILL_PYTHON_ENTRY_HPP

#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

#include "core/tree.hpp"

namespace kelp::input::quill::python {

/// Where an entry is: its index in its list and, for a parameter, that of its command.
struct Place {
  std::size_t index = 0;
  std::size_t command = 0;
};

// Where a document has the lists of parts, and the Python objects that show their entries.
inline std::vector<HeaderCommand>& list_at(QuillInput& input, Place /*place*/,
                                           const HeaderCommand* /*kind*/) {
  return input.commands;
}
inline std::vector<CommandParameter>& list_at(QuillInput& input, Place place,
                                              const CommandParameter* /*kind*/) {
  return input.commands[place.command].parameters;
}
inline std::vector<AtomRecord>& list_at(QuillInput& input, Place /*place*/,
                                        const AtomRecord* /*kind*/) {
  return input.geometry.atoms;
}
inline std::vector<PostCommand>& list_at(QuillInput& input, Place /*place*/,
                                         const PostCommand* /*kind*/) {
  return input.post_commands;
}
inline Entries<HeaderCommand>& entries_of(Tree& tree, const HeaderCommand* /*kind*/) {
  return tree.commands;
}
inline Entries<CommandParameter>& entries_of(Tree& tree, const CommandParameter* /*kind*/) {
  return tree.parameters;
}
inline Entries<AtomRecord>& entries_of(Tree& tree, const AtomRecord* /*kind*/) {
  return tree.atoms;
}
inline Entries<PostCommand>& entries_of(Tree& tree, const PostCommand* /*kind*/) {
  return tree.post_commands;
}

/// Makes the document in which a part stands alone.
inline void put_alone(QuillInput& input, HeaderCommand part) {
  input.commands.push_back(std::move(part));
}
inline void put_alone(QuillInput& input, CommandParameter part) {
  input.commands.emplace_back();
  input.commands.back().parameters.push_back(std::move(part));
}
inline void put_alone(QuillInput& input, AtomRecord part) {
  input.geometry.atoms.push_back(std::move(part));
}
inline void put_alone(QuillInput& input, PostCommand part) {
  input.post_commands.push_back(std::move(part));
}

/// One entry of a list of a document, as a Python object shows it. Entries are found by their index
/// each time, so that a list may grow. Before entries are removed, replaced or moved, those that
/// are shown are given a document of their own with what they held: nothing ever dangles, and they
/// behave as what is taken out of a list of Python's does.
template <typename Part>
class Entry {
 public:
  Entry(std::shared_ptr<Tree> tree, Place place) : tree_(std::move(tree)), place_(place) {
    entries().insert(this);
  }
  explicit Entry(Part part) : Entry(make_tree(std::move(part)), Place()) {}
  Entry(const Entry&) = delete;
  Entry& operator=(const Entry&) = delete;
  ~Entry() { entries().erase(this); }

  Part& part() const { return list_at(tree_->input, place_, kind)[place_.index]; }
  const std::shared_ptr<Tree>& tree() const { return tree_; }
  const Place& place() const { return place_; }

  /// Leaves the document and stands alone from now on. If memory runs out, nothing is changed.
  void stand_alone() {
    std::shared_ptr<Tree> alone = make_tree(part());
    entries_of(*alone, kind).insert(this);
    entries().erase(this);
    tree_ = std::move(alone);
    place_ = Place();
  }

 private:
  static constexpr const Part* kind = nullptr;

  static std::shared_ptr<Tree> make_tree(Part part) {
    auto tree = std::make_shared<Tree>();
    put_alone(tree->input, std::move(part));
    return tree;
  }

  Entries<Part>& entries() const { return entries_of(*tree_, kind); }

  std::shared_ptr<Tree> tree_;
  Place place_;
};

/// Lets every entry of one kind that is shown stand alone. To be called before entries are removed,
/// replaced or moved.
template <typename Part>
void let_stand_alone(Tree& tree) {
  const Entries<Part>& shown = entries_of(tree, static_cast<const Part*>(nullptr));
  const std::vector<Entry<Part>*> all(shown.begin(), shown.end());
  for (Entry<Part>* entry : all) entry->stand_alone();
}

/// Does so for commands and their parameters.
inline void let_commands_stand_alone(Tree& tree) {
  let_stand_alone<CommandParameter>(tree);
  let_stand_alone<HeaderCommand>(tree);
}

}  // namespace kelp::input::quill::python

#endif  // KELP_INPUT_QUILL_PYTHON_ENTRY_HPP
