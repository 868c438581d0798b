#include <benchmark/benchmark.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "kelp/chem/elements.hpp"
#include "kelp/core/text.hpp"
#include "kelp/input/quill/quill.hpp"
#include "reference/plain_functions.hpp"
#include "support/inputs.hpp"
#include "support/per_item.hpp"

// The nine functions that reading consists of, those of the sister libraries and the plain ones, on
// the arguments that a reader passes. Items are calls, and for split_lines lines.

namespace kelp::input::quill::bench {
namespace {

using Arguments = std::vector<std::string>;

Arguments atom_lines() {
  return plain::split_lines(QuillInput({}, molecule(1'000).geometry).to_string());
}

/// The first token of every line that has four, or the others.
Arguments atom_tokens(bool first) {
  Arguments tokens;
  for (const std::string& line : atom_lines()) {
    const Arguments words = plain::split_whitespace(line);
    for (std::size_t i = 0; words.size() == 4 && i < words.size(); ++i) {
      if ((i == 0) == first) tokens.push_back(words[i]);
    }
  }
  return tokens;
}

Arguments integers() {
  Arguments tokens;
  for (int i = 0; i < 1'000; ++i) tokens.push_back(std::to_string(i * i));
  return tokens;
}

/// Calls `function` once for each argument and requires that the results are those of `reference`.
template <typename Result>
void call(benchmark::State& state, Result (*function)(std::string_view),
          Result (*reference)(std::string_view), const Arguments& arguments) {
  for (const std::string& argument : arguments) {
    if (function(argument) != reference(argument)) state.SkipWithError("not the same result");
  }
  for (auto _ : state) {
    for (const std::string& argument : arguments) benchmark::DoNotOptimize(function(argument));
  }
  report_per_item(state, arguments.size());
}

template <bool (*parse)(std::string_view, double&)>
std::optional<double> number_of(std::string_view token) {
  double value = 0.0;
  return parse(token, value) ? std::optional<double>(value) : std::nullopt;
}

template <bool (*parse)(std::string_view, int&)>
std::optional<int> integer_of(std::string_view token) {
  int value = 0;
  return parse(token, value) ? std::optional<int>(value) : std::nullopt;
}

void lines_of(benchmark::State& state, std::vector<std::string> (*function)(std::string_view)) {
  const std::string text = molecule(10'000).to_string();
  if (function(text) != plain::split_lines(text)) state.SkipWithError("not the same result");
  for (auto _ : state) benchmark::DoNotOptimize(function(text));
  report_per_item(state, function(text).size());
}

namespace text = core::text;
namespace elements = chem::elements;

BENCHMARK_CAPTURE(lines_of, own, text::split_lines);
BENCHMARK_CAPTURE(lines_of, plain, plain::split_lines);
BENCHMARK_CAPTURE(call, trim_own, text::trim, plain::trim, atom_lines());
BENCHMARK_CAPTURE(call, trim_plain, plain::trim, text::trim, atom_lines());
BENCHMARK_CAPTURE(call, split_whitespace_own, text::split_whitespace, plain::split_whitespace,
                  atom_lines());
BENCHMARK_CAPTURE(call, split_whitespace_plain, plain::split_whitespace, text::split_whitespace,
                  atom_lines());
BENCHMARK_CAPTURE(call, to_lower_copy_own, text::to_lower_copy, plain::to_lower_copy,
                  atom_tokens(true));
BENCHMARK_CAPTURE(call, to_lower_copy_plain, plain::to_lower_copy, text::to_lower_copy,
                  atom_tokens(true));
BENCHMARK_CAPTURE(call, to_upper_copy_own, text::to_upper_copy, plain::to_upper_copy,
                  atom_tokens(true));
BENCHMARK_CAPTURE(call, to_upper_copy_plain, plain::to_upper_copy, text::to_upper_copy,
                  atom_tokens(true));
BENCHMARK_CAPTURE(call, try_parse_double_own, number_of<text::try_parse_double>,
                  number_of<plain::try_parse_double>, atom_tokens(false));
BENCHMARK_CAPTURE(call, try_parse_double_plain, number_of<plain::try_parse_double>,
                  number_of<text::try_parse_double>, atom_tokens(false));
BENCHMARK_CAPTURE(call, try_parse_int_own, integer_of<text::try_parse_int>,
                  integer_of<plain::try_parse_int>, integers());
BENCHMARK_CAPTURE(call, try_parse_int_plain, integer_of<plain::try_parse_int>,
                  integer_of<text::try_parse_int>, integers());
BENCHMARK_CAPTURE(call, normalize_symbol_own, elements::normalize_symbol, plain::normalize_symbol,
                  atom_tokens(true));
BENCHMARK_CAPTURE(call, normalize_symbol_plain, plain::normalize_symbol, elements::normalize_symbol,
                  atom_tokens(true));
BENCHMARK_CAPTURE(call, atomic_number_own, elements::atomic_number_from_symbol,
                  plain::atomic_number_from_symbol, atom_tokens(true));
BENCHMARK_CAPTURE(call, atomic_number_plain, plain::atomic_number_from_symbol,
                  elements::atomic_number_from_symbol, atom_tokens(true));

}  // namespace
}  // namespace kelp::input::quill::bench
