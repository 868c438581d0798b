#include <benchmark/benchmark.h>

#include <cstddef>
#include <string>

#include "kelp/input/quill/quill.hpp"
#include "reference/bare_loops.hpp"
#include "support/inputs.hpp"
#include "support/per_item.hpp"
#include "support/scratch_path.hpp"

// Writing, by the library and by what it is compared with. Items are atoms.

namespace kelp::input::quill::bench {
namespace {

using Writer = std::string (*)(const QuillInput&);

std::string write_with_library(const QuillInput& input) { return input.to_string(); }

/// Charge, multiplicity and atoms, which all of the writers can write.
QuillInput only_atoms(const benchmark::State& state) {
  return QuillInput({}, molecule(static_cast<std::size_t>(state.range(0))).geometry);
}

void write_text(benchmark::State& state, Writer write) {
  const QuillInput input = only_atoms(state);
  if (write(input) != input.to_string())
    state.SkipWithError("not the text that the library writes");
  for (auto _ : state) benchmark::DoNotOptimize(write(input));
  report_per_item(state, input.geometry.atoms.size());
}

void write_file(benchmark::State& state) {
  const ScratchPath file;
  const QuillInput input = only_atoms(state);
  for (auto _ : state) input.write_file(file.path());
  if (parse_file(file.path()).input.to_string() != input.to_string())
    state.SkipWithError("the file does not hold the text");
  report_per_item(state, input.geometry.atoms.size());
}

void atom_counts(benchmark::internal::Benchmark* atoms) {
  atoms->Arg(10)->Arg(100)->Arg(10'000)->Arg(1'000'000);
}

BENCHMARK_CAPTURE(write_text, library, write_with_library)->Apply(atom_counts);
BENCHMARK_CAPTURE(write_text, to_chars, write_with_to_chars)->Apply(atom_counts);
BENCHMARK_CAPTURE(write_text, stream, write_with_stream)->Apply(atom_counts);
BENCHMARK(write_file)->Apply(atom_counts);

}  // namespace
}  // namespace kelp::input::quill::bench
