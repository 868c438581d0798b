#include "scale/tasks.hpp"

#include <ostream>
#include <string_view>
#include <utility>

#include "kelp/input/quill/quill.hpp"
#include "scale/shapes.hpp"

namespace kelp::input::quill {

namespace {

QuillInput nothing(std::size_t /*size*/) { return {}; }

QuillInput many_atoms(std::size_t n) {
  QuillInput document;
  document.geometry.kind = GeometryKind::Atoms;
  document.geometry.atoms.assign(n, AtomRecord{"C", -0.729, -2.609047, 2.31298});
  return document;
}

/// Atoms whose coordinates have more than three hundred digits.
QuillInput far_atoms(std::size_t n) {
  QuillInput document;
  document.geometry.kind = GeometryKind::Atoms;
  document.geometry.atoms.assign(n, AtomRecord{"C", 1.7e308, -1.7e308, 1.7e308});
  return document;
}

QuillInput many_paths(std::size_t n) {
  QuillInput document;
  document.geometry.kind = GeometryKind::XyzFile;
  document.geometry.xyz_files.assign(n, "structures/a path that is not quite short.xyz");
  return document;
}

QuillInput many_commands(std::size_t n) {
  QuillInput document;
  document.commands.assign(
      n,
      HeaderCommand{"opt", HeaderCommandKind::ParameterList, {}, {{"maxiter", "50"}, {"tight"}}});
  return document;
}

QuillInput commands_of_no_task(std::size_t n) {
  return QuillInput{std::vector<HeaderCommand>(n, HeaderCommand{"model"})};
}

/// Commands of which every second one is called "opt", in one spelling or another.
QuillInput commands_of_two_names(std::size_t n) {
  QuillInput document;
  for (std::size_t i = 0; i < n; ++i) {
    document.commands.emplace_back(i % 4 == 0 ? "opt" : "#OPT");
    document.commands.emplace_back("a name that is not quite short");
  }
  return document;
}

QuillInput many_parameters(std::size_t n) {
  HeaderCommand command("opt", HeaderCommandKind::ParameterList);
  command.parameters.assign(n, CommandParameter{"maxiter", "50"});
  return QuillInput{{command}};
}

QuillInput many_post_lines(std::size_t n) {
  QuillInput document;
  document.post_commands.assign(n, PostCommand{PostCommandKind::Scan, {1, 2, 3, 4}, 1.5, 10});
  return document;
}

QuillInput one_long_name(std::size_t n) { return QuillInput{{HeaderCommand{std::string(n, 'X')}}}; }

bool write(QuillInput& document, std::size_t n) { return document.to_string().size() >= n; }

bool copy(QuillInput& document, std::size_t /*size*/) {
  const QuillInput copied(document);
  return copied.commands.size() == document.commands.size() &&
         copied.geometry.atoms.size() == document.geometry.atoms.size();
}

struct Work {
  std::string_view name;
  std::size_t size;
  QuillInput (*document)(std::size_t size);
  bool (*is_done)(QuillInput& document, std::size_t size);
};

constexpr std::size_t thousand = 1000;

const Work works[] = {
    {"WritingAtoms", 2 * thousand, many_atoms, write},
    {"WritingAtomsFarAway", 1 * thousand, far_atoms, write},
    {"WritingPaths", 4 * thousand, many_paths, write},
    {"WritingCommands", 2 * thousand, many_commands, write},
    {"WritingParameters", 4 * thousand, many_parameters, write},
    {"WritingPostLines", 2 * thousand, many_post_lines, write},
    {"WritingALongName", 800 * thousand, one_long_name, write},
    {"CopyingAtoms", 4 * thousand, many_atoms, copy},
    {"CopyingCommands", 2 * thousand, many_commands, copy},
    {"FindingTheLastOccurrence", 4 * thousand, many_commands,
     [](QuillInput& document, std::size_t n) {
       return document.find_command("OPT", n - 1) == &document.commands.back();
     }},
    {"FindingNoCommand", 4 * thousand, many_commands,
     [](QuillInput& document, std::size_t /*size*/) { return !document.has_command("x"); }},
    {"FindingNoTask", 4 * thousand, commands_of_no_task,
     [](QuillInput& document, std::size_t /*size*/) { return !document.has_task_command(); }},
    {"FindingALongName", 80 * thousand, one_long_name,
     [](QuillInput& document, std::size_t n) {
       return document.has_command("#" + std::string(n, 'x'));
     }},
    {"FindingNoParameter", 4 * thousand, many_parameters,
     [](QuillInput& document, std::size_t /*size*/) {
       return find_parameter_index(document.commands.front(), "tight") == std::nullopt;
     }},
    {"ListingNames", 4 * thousand, many_commands,
     [](QuillInput& document, std::size_t n) { return document.command_names().size() == n; }},
    {"RemovingEveryCommand", 4 * thousand, many_commands,
     [](QuillInput& document, std::size_t /*size*/) {
       return document.remove_command("Opt") && document.commands.empty();
     }},
    {"RemovingEverySecondCommand", 2 * thousand, commands_of_two_names,
     [](QuillInput& document, std::size_t n) {
       return document.remove_command("Opt") && document.commands.size() == n;
     }},
    {"RemovingTheFirstCommand", 4 * thousand, many_commands,
     [](QuillInput& document, std::size_t n) {
       return document.remove_command("Opt", 0) && document.commands.size() == n - 1;
     }},
    {"AddingAtomsToAnEditor", 4 * thousand, nothing,
     [](QuillInput& document, std::size_t n) {
       InputEditor editor(std::move(document));
       for (std::size_t i = 0; i < n; ++i) editor.add_atom(AtomRecord{"H", 0.0, 0.0, 0.0});
       return editor.document().geometry.atoms.size() == n;
     }},
    {"AddingPostLinesToAnEditor", 4 * thousand, nothing,
     [](QuillInput& document, std::size_t n) {
       InputEditor editor(std::move(document));
       for (std::size_t i = 0; i < n; ++i) editor.add_bond_constraint(1, 2);
       return editor.document().post_commands.size() == n;
     }},
    {"AddingCommandsToABuilder", 4 * thousand, nothing,
     [](QuillInput& /*document*/, std::size_t n) {
       InputBuilder builder;
       for (std::size_t i = 0; i < n; ++i) builder.add_command(HeaderCommand{"opt"});
       return builder.document().commands.size() == n;
     }},
};

Task task_of(const Shape& shape) {
  return {"Reading" + std::string(shape.name), shape.test_size, [&shape](std::size_t size) {
            return [&shape, size, text = shape.text(size)] {
              return shape.is_read(parse_string(text), size);
            };
          }};
}

Task task_of(const Work& work) {
  return {std::string(work.name), work.size, [&work](std::size_t size) {
            return [&work, size, document = work.document(size)]() mutable {
              return work.is_done(document, size);
            };
          }};
}

std::vector<Task> all_tasks() {
  std::vector<Task> all;
  for (const Shape& shape : shapes()) all.push_back(task_of(shape));
  for (const Work& work : works) all.push_back(task_of(work));
  return all;
}

}  // namespace

void PrintTo(const Task& task, std::ostream* out) { *out << task.name; }

const std::vector<Task>& tasks() {
  static const std::vector<Task> all = all_tasks();
  return all;
}

}  // namespace kelp::input::quill
