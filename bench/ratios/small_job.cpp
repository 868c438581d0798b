#include <benchmark/benchmark.h>

#include <string>
#include <utility>

#include "kelp/input/quill/quill.hpp"
#include "ratios/ratios.hpp"
#include "reference/bare_loops.hpp"
#include "support/inputs.hpp"

namespace kelp::input::quill::bench {

namespace {

std::string change_by_library(const std::string& text) {
  ParseResult result = parse_string(text);
  InputEditor editor(std::move(result.input));
  editor.set_parameter("opt", "maxiter", "250");
  return editor.to_string();
}

std::string change_by_bare_loops(const std::string& text) {
  ParseResult result = read_with_own_functions(text);
  set_parameter_bare(result.input, "opt", "maxiter", "250");
  return write_with_to_chars(result.input);
}

}  // namespace

void add_small_job_ratios(RatioTable& table) {
  const std::string text = small_job().to_string();
  const std::string what = "parse, set a parameter, write 30 atoms : bare loops";
  require_same(change_by_library(text) == change_by_bare_loops(text), what);
  table.compare(
      what, [&text] { benchmark::DoNotOptimize(change_by_library(text)); },
      [&text] { benchmark::DoNotOptimize(change_by_bare_loops(text)); }, 1.00);
}

}  // namespace kelp::input::quill::bench
