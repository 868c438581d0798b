#include <benchmark/benchmark.h>

#include <string>
#include <utility>

#include "kelp/input/quill/quill.hpp"
#include "support/inputs.hpp"

// What a script does with an input of ten commands and thirty atoms.

namespace kelp::input::quill::bench {
namespace {

void read_change_write(benchmark::State& state) {
  const std::string text = small_job().to_string();
  std::string changed;
  for (auto _ : state) {
    ParseResult result = parse_string(text);
    InputEditor editor(std::move(result.input));
    editor.set_parameter("opt", "maxiter", "250");
    changed = editor.to_string();
    benchmark::DoNotOptimize(changed);
  }
  if (changed.size() != text.size() || changed.find("maxiter=250") == std::string::npos)
    state.SkipWithError("the parameter was not set");
}

BENCHMARK(read_change_write);

}  // namespace
}  // namespace kelp::input::quill::bench
