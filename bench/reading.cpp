#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstdint>
#include <string>

#include "kelp/input/quill/quill.hpp"
#include "reference/bare_loops.hpp"
#include "support/inputs.hpp"
#include "support/per_item.hpp"
#include "support/scratch_path.hpp"

// Reading, by the library and by what it is compared with. Items are lines of the kind that most of
// the input consists of.

namespace kelp::input::quill::bench {
namespace {

using Reader = ParseResult (*)(std::string_view);
using Maker = QuillInput (*)(std::size_t);

std::size_t size_of(const benchmark::State& state) {
  return static_cast<std::size_t>(state.range(0));
}

void read_text(benchmark::State& state, Reader read, Maker make) {
  const std::string text = make(size_of(state)).to_string();
  if (read(text).input.to_string() != text)
    state.SkipWithError("what was read is not what was written");
  for (auto _ : state) benchmark::DoNotOptimize(read(text));
  report_per_item(state, size_of(state));
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}

void read_file(benchmark::State& state) {
  const ScratchPath file;
  const QuillInput input = molecule(size_of(state));
  input.write_file(file.path());
  if (parse_file(file.path()).input.to_string() != input.to_string())
    state.SkipWithError("what was read is not what was written");
  for (auto _ : state) benchmark::DoNotOptimize(parse_file(file.path()));
  report_per_item(state, size_of(state));
}

void atom_counts(benchmark::internal::Benchmark* atoms) {
  atoms->Arg(10)->Arg(100)->Arg(10'000)->Arg(1'000'000);
}

BENCHMARK_CAPTURE(read_text, atoms, parse_string, molecule)->Apply(atom_counts);
BENCHMARK_CAPTURE(read_text, atoms_own_functions_bare, read_with_own_functions, molecule)
    ->Apply(atom_counts);
BENCHMARK_CAPTURE(read_text, atoms_plain_functions_bare, read_with_plain_functions, molecule)
    ->Apply(atom_counts);
BENCHMARK(read_file)->Apply(atom_counts);

BENCHMARK_CAPTURE(read_text, header_lines, parse_string, header_heavy)->Arg(2'000);
BENCHMARK_CAPTURE(read_text, header_lines_own_functions_bare, read_with_own_functions, header_heavy)
    ->Arg(2'000);
BENCHMARK_CAPTURE(read_text, post_lines, parse_string, post_heavy)->Arg(10'000);
BENCHMARK_CAPTURE(read_text, post_lines_own_functions_bare, read_with_own_functions, post_heavy)
    ->Arg(10'000);
BENCHMARK_CAPTURE(read_text, references, parse_string, references)->Arg(1'000);
BENCHMARK_CAPTURE(read_text, references_own_functions_bare, read_with_own_functions, references)
    ->Arg(1'000);

}  // namespace
}  // namespace kelp::input::quill::bench
