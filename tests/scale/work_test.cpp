// Twice the document takes about twice the time and the memory to write, copy, ask and change.

#include <gtest/gtest.h>

#include <cstddef>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>

#include "kelp/input/quill/quill.hpp"
#include "scale/expect_linear.hpp"

namespace kelp::input::quill {
namespace {

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

struct Row {
  std::string_view name;
  std::size_t size;
  QuillInput (*make)(std::size_t n);
  void (*work)(QuillInput& document, std::size_t n);
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }

void write(QuillInput& document, std::size_t n) { EXPECT_GE(document.to_string().size(), n); }

void copy(QuillInput& document, std::size_t) {
  const QuillInput copied(document);
  EXPECT_EQ(copied.geometry.atoms.size(), document.geometry.atoms.size());
}

QuillInput nothing(std::size_t) { return {}; }

const Row rows[] = {
    {"WritingAtoms", 80000, many_atoms, write},
    {"WritingAtomsFarAway", 4000, far_atoms, write},
    {"WritingPaths", 400000, many_paths, write},
    {"WritingCommands", 100000, many_commands, write},
    {"WritingParameters", 200000, many_parameters, write},
    {"WritingPostLines", 60000, many_post_lines, write},
    {"WritingALongName", 64000000, one_long_name, write},
    {"CopyingAtoms", 300000, many_atoms, copy},
    {"CopyingCommands", 40000, many_commands, copy},
    {"FindingTheLastOccurrence", 40000, many_commands,
     [](QuillInput& d, std::size_t n) {
       EXPECT_EQ(d.find_command("OPT", n - 1), &d.commands.back());
     }},
    {"FindingNothing", 40000, many_commands,
     [](QuillInput& d, std::size_t) { EXPECT_FALSE(d.has_task_command() && d.has_command("x")); }},
    {"FindingALongName", 4000000, one_long_name,
     [](QuillInput& d, std::size_t n) { EXPECT_TRUE(d.has_command("#" + std::string(n, 'x'))); }},
    {"FindingNoParameter", 60000, many_parameters,
     [](QuillInput& d, std::size_t) {
       EXPECT_EQ(find_parameter_index(d.commands.front(), "tight"), std::nullopt);
     }},
    {"ListingNames", 200000, many_commands,
     [](QuillInput& d, std::size_t n) { EXPECT_EQ(d.command_names().size(), n); }},
    {"RemovingEveryCommand", 40000, many_commands,
     [](QuillInput& d, std::size_t) { EXPECT_TRUE(d.remove_command("Opt")); }},
    {"RemovingTheFirstCommand", 40000, many_commands,
     [](QuillInput& d, std::size_t) { EXPECT_TRUE(d.remove_command("Opt", 0)); }},
    {"AddingAtomsToAnEditor", 200000, nothing,
     [](QuillInput& d, std::size_t n) {
       InputEditor editor(std::move(d));
       for (std::size_t i = 0; i < n; ++i) editor.add_atom(AtomRecord{"H", 0.0, 0.0, 0.0});
       EXPECT_EQ(editor.document().geometry.atoms.size(), n);
     }},
    {"AddingPostLinesToAnEditor", 100000, nothing,
     [](QuillInput& d, std::size_t n) {
       InputEditor editor(std::move(d));
       for (std::size_t i = 0; i < n; ++i) editor.add_bond_constraint(1, 2);
       EXPECT_EQ(editor.document().post_commands.size(), n);
     }},
    {"AddingCommandsToABuilder", 100000, nothing,
     [](QuillInput&, std::size_t n) {
       InputBuilder builder;
       for (std::size_t i = 0; i < n; ++i) builder.add_command(HeaderCommand{"opt"});
       EXPECT_EQ(builder.document().commands.size(), n);
     }},
};

class Work : public testing::TestWithParam<Row> {};

TEST_P(Work, IsLinear) {
  const Row& row = GetParam();
  expect_linear(row.size, [&row](std::size_t size) {
    return [&row, size, document = row.make(size)]() mutable { row.work(document, size); };
  });
}

INSTANTIATE_TEST_SUITE_P(Table, Work, testing::ValuesIn(rows),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace kelp::input::quill
