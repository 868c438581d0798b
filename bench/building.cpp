#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "kelp/input/quill/quill.hpp"
#include "support/inputs.hpp"

// One operation of the builder, which copies its document twice, on ten commands and thirty atoms,
// and the two copies alone. Operations that append to the document start again after every hundred.

namespace kelp::input::quill::bench {
namespace {

using Operation = void (*)(InputBuilder&);

InputBuilder small_builder() {
  const QuillInput input = small_job();
  InputBuilder builder;
  for (const HeaderCommand& command : input.commands) builder.add_command(command);
  builder.set_geometry(input.geometry.atoms).set_charge_and_multiplicity(0, 1);
  return builder;
}

void build(benchmark::State& state, Operation operation) {
  InputBuilder builder = small_builder();
  for (auto _ : state) {
    operation(builder);
    benchmark::ClobberMemory();
  }
  if (!builder.document().has_task_command()) state.SkipWithError("the document was lost");
}

/// An operation that makes the document larger, on a document that never gets much larger.
void append(benchmark::State& state, Operation operation) {
  constexpr int most = 5;
  const InputBuilder start = small_builder();
  InputBuilder builder = start;
  int count = 0;
  for (auto _ : state) {
    operation(builder);
    if (++count < most) continue;
    state.PauseTiming();
    builder = start;
    count = 0;
    state.ResumeTiming();
  }
}

void two_copies(benchmark::State& state) {
  QuillInput input = small_job();
  for (auto _ : state) {
    const QuillInput copy(input);
    input = copy;
    benchmark::ClobberMemory();
  }
}

void set_task(InputBuilder& builder) { builder.set_task("opt", {{"maxiter", "50"}, {"tight"}}); }

void set_task_parameter(InputBuilder& builder) {
  builder.set_task_parameter("opt", "maxiter", "250");
}

void set_model(InputBuilder& builder) { builder.set_model("general-organic"); }

void set_device(InputBuilder& builder) { builder.set_device("cpu"); }

void set_flag(InputBuilder& builder) { builder.set_flag("freq"); }

void set_charge(InputBuilder& builder) { builder.set_charge_and_multiplicity(0, 1); }

void set_geometry(InputBuilder& builder) {
  static const std::vector<AtomRecord> atoms = small_job().geometry.atoms;
  builder.set_geometry(atoms);
}

void set_xyz_file(InputBuilder& builder) { builder.set_xyz_file("water.xyz"); }

void add_atom(InputBuilder& builder) { builder.add_atom(AtomRecord{"H", 0.0, 0.0, 0.74}); }

void add_command(InputBuilder& builder) { builder.add_command(HeaderCommand{"freq"}); }

void add_bond_constraint(InputBuilder& builder) { builder.add_bond_constraint(1, 2); }

void add_scan(InputBuilder& builder) { builder.add_scan({1, 2}, 1.5, 10); }

void set_post_file(InputBuilder& builder) { builder.set_post_file("results/out.dat"); }

BENCHMARK(two_copies);
BENCHMARK_CAPTURE(build, set_task, set_task);
BENCHMARK_CAPTURE(build, set_task_parameter, set_task_parameter);
BENCHMARK_CAPTURE(build, set_model, set_model);
BENCHMARK_CAPTURE(build, set_device, set_device);
BENCHMARK_CAPTURE(build, set_flag, set_flag);
BENCHMARK_CAPTURE(build, set_charge, set_charge);
BENCHMARK_CAPTURE(build, set_geometry, set_geometry);
BENCHMARK_CAPTURE(build, set_xyz_file, set_xyz_file);
BENCHMARK_CAPTURE(append, add_atom, add_atom);
BENCHMARK_CAPTURE(append, add_command, add_command);
BENCHMARK_CAPTURE(append, add_bond_constraint, add_bond_constraint);
BENCHMARK_CAPTURE(append, add_scan, add_scan);
BENCHMARK_CAPTURE(append, set_post_file, set_post_file);

}  // namespace
}  // namespace kelp::input::quill::bench
