#ifndef KELP_INPUT_QUILL_PYTHON_PART_LISTS_HPP
#define KELP_INPUT_QUILL_PYTHON_PART_LISTS_HPP

#include <memory>
#include <string>
#include <vector>

#include "core/arguments.hpp"
#include "core/handles.hpp"
#include "core/sealed_class.hpp"

// Lists of a document, each with the three functions of which the Python package makes the rest:
// how many entries there are, one entry, and other entries in the place of a range.

namespace kelp::input::quill::python {

/// The list of a document in which parts of one kind are.
template <typename Part>
struct PartsOf {
  using Entries = Part;

  std::shared_ptr<Tree> tree;

  const std::shared_ptr<Tree>& owner() const { return tree; }
  std::vector<Part>& entries() const {
    return list_at(tree->input, Place(), static_cast<const Part*>(nullptr));
  }
  std::shared_ptr<Entry<Part>> show(std::size_t index) const {
    return std::make_shared<Entry<Part>>(tree, Place{index, 0});
  }
  static Part part_of(py::handle object) { return object.cast<Entry<Part>&>().part(); }
  void let_go() const { let_stand_alone<Part>(*tree); }
};

struct CommandList : PartsOf<HeaderCommand> {
  void let_go() const { let_commands_stand_alone(*tree); }
};
using AtomList = PartsOf<AtomRecord>;
using PostLineList = PartsOf<PostCommand>;

/// The parameters of a command, wherever that is.
struct ParameterList {
  std::shared_ptr<Command> command;

  const std::shared_ptr<Tree>& owner() const { return command->tree(); }
  std::vector<CommandParameter>& entries() const { return command->part().parameters; }
  std::shared_ptr<Parameter> show(std::size_t index) const {
    return std::make_shared<Parameter>(command->tree(), Place{index, command->place().index});
  }
  static CommandParameter part_of(py::handle object) { return object.cast<Parameter&>().part(); }
  void let_go() const { let_stand_alone<CommandParameter>(*command->tree()); }
};

/// The paths of a geometry and the atom numbers of a post-processing line, which are plain values.
struct PathList {
  std::shared_ptr<Tree> tree;

  const std::shared_ptr<Tree>& owner() const { return tree; }
  std::vector<std::string>& entries() const { return tree->input.geometry.xyz_files; }
  py::object show(std::size_t index) const { return to_python(entries()[index]); }
  static std::string part_of(py::handle object) { return text_from(object).bytes; }
  void let_go() const {}
};

struct NumberList {
  std::shared_ptr<PostLine> line;

  const std::shared_ptr<Tree>& owner() const { return line->tree(); }
  std::vector<std::int32_t>& entries() const { return line->part().atom_indices; }
  py::int_ show(std::size_t index) const { return py::int_(entries()[index]); }
  static std::int32_t part_of(py::handle object) { return whole_from(object).value; }
  void let_go() const {}
};

/// Puts values in the place of the entries from number `first` up to number `last`, which is left.
/// The values are copied before anything is changed: they may be entries of the same list.
template <typename List>
void replace_entries(const List& list, Count first, Count last, const py::list& objects) {
  auto values = std::decay_t<decltype(list.entries())>();
  values.reserve(objects.size());
  for (const py::handle object : objects) values.push_back(List::part_of(object));

  auto& entries = list.entries();
  if (first.value > last.value || last.value > entries.size()) throw py::index_error();
  const auto at = [&](Count number) {
    return entries.begin() + static_cast<std::ptrdiff_t>(number.value);
  };
  const std::shared_ptr<Tree>& owner = list.owner();
  const Change change(*owner);
  if (first.value < entries.size()) list.let_go();
  // Room first, so that nothing is removed when memory runs out.
  entries.reserve(entries.size() + values.size());
  const auto after = entries.erase(at(first), at(last));
  entries.insert(after, std::make_move_iterator(values.begin()),
                 std::make_move_iterator(values.end()));
}

template <typename List>
void bind_list(py::module_& module, const char* name) {
  sealed_class<List>(module, name)
      .def("size", [](const List& list) { return list.entries().size(); })
      .def("entry",
           [](const List& list, Count index) {
             if (index.value >= list.entries().size()) throw py::index_error();
             return list.show(index.value);
           })
      .def("replace", &replace_entries<List>);
}

}  // namespace kelp::input::quill::python

#endif  // KELP_INPUT_QUILL_PYTHON_PART_LISTS_HPP
