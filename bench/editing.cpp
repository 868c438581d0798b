#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "kelp/input/quill/quill.hpp"
#include "support/inputs.hpp"

// One operation of the editor on a document of ten commands and thirty atoms. Operations that make
// the document larger are timed together with the operation that removes what they added.

namespace kelp::input::quill::bench {
namespace {

using Operation = void (*)(InputEditor&);

void edit(benchmark::State& state, Operation operation) {
  InputEditor editor(small_job());
  operation(editor);
  const std::string once = editor.to_string();
  for (auto _ : state) {
    operation(editor);
    benchmark::ClobberMemory();
  }
  if (editor.to_string() != once)
    state.SkipWithError("the operation does not leave the document as it was");
}

void find_a_command(InputEditor& editor) { benchmark::DoNotOptimize(editor.has_command("title")); }

void find_no_task(InputEditor& editor) {
  benchmark::DoNotOptimize(editor.document().find_command("irc"));
}

void list_commands(InputEditor& editor) { benchmark::DoNotOptimize(editor.command_names()); }

void get_assignment(InputEditor& editor) {
  benchmark::DoNotOptimize(editor.get_assignment("memory"));
}

void get_parameter(InputEditor& editor) {
  benchmark::DoNotOptimize(editor.get_parameter("opt", "maxiter"));
}

void set_flag(InputEditor& editor) { editor.set_flag("freq"); }

void set_assignment(InputEditor& editor) { editor.set_assignment("model", "general-organic"); }

void set_task(InputEditor& editor) { editor.set_task("opt", {{"maxiter", "50"}, {"tight"}}); }

void set_parameter(InputEditor& editor) { editor.set_parameter("opt", "maxiter", "250"); }

void add_and_remove_a_parameter(InputEditor& editor) {
  editor.set_parameter("opt", "trust", "0.1");
  editor.remove_parameter("opt", "trust");
}

void add_and_remove_a_command(InputEditor& editor) {
  editor.add_command(HeaderCommand{"solvent"});
  editor.remove_command("solvent");
}

void set_charge(InputEditor& editor) { editor.set_charge_and_multiplicity(-1, 2); }

void set_geometry(InputEditor& editor) {
  static const std::vector<AtomRecord> atoms = small_job().geometry.atoms;
  editor.set_geometry(atoms);
}

void add_thirty_atoms(InputEditor& editor) {
  editor.set_xyz_file("water.xyz");
  for (int i = 0; i < 30; ++i) editor.add_atom(AtomRecord{"H", 0.0, 0.0, 0.74});
}

void set_trajectory(InputEditor& editor) { editor.set_xyz_trajectory("path.xyz"); }

void add_and_clear_constraints(InputEditor& editor) {
  editor.add_atom_constraint(1);
  editor.add_bond_constraint(1, 2);
  editor.add_angle_constraint(1, 2, 3);
  editor.add_dihedral_constraint(1, 2, 3, 4);
  editor.add_scan({1, 2}, 1.5, 10);
  editor.clear_post_commands();
}

BENCHMARK_CAPTURE(edit, find_a_command, find_a_command);
BENCHMARK_CAPTURE(edit, find_no_task, find_no_task);
BENCHMARK_CAPTURE(edit, list_commands, list_commands);
BENCHMARK_CAPTURE(edit, get_assignment, get_assignment);
BENCHMARK_CAPTURE(edit, get_parameter, get_parameter);
BENCHMARK_CAPTURE(edit, set_flag, set_flag);
BENCHMARK_CAPTURE(edit, set_assignment, set_assignment);
BENCHMARK_CAPTURE(edit, set_task, set_task);
BENCHMARK_CAPTURE(edit, set_parameter, set_parameter);
BENCHMARK_CAPTURE(edit, add_and_remove_a_parameter, add_and_remove_a_parameter);
BENCHMARK_CAPTURE(edit, add_and_remove_a_command, add_and_remove_a_command);
BENCHMARK_CAPTURE(edit, set_charge, set_charge);
BENCHMARK_CAPTURE(edit, set_geometry, set_geometry);
BENCHMARK_CAPTURE(edit, add_thirty_atoms, add_thirty_atoms);
BENCHMARK_CAPTURE(edit, set_trajectory, set_trajectory);
BENCHMARK_CAPTURE(edit, add_and_clear_constraints, add_and_clear_constraints);

}  // namespace
}  // namespace kelp::input::quill::bench
