#ifndef KELP_INPUT_QUILL_BENCH_SUPPORT_PER_ITEM_HPP
#define KELP_INPUT_QUILL_BENCH_SUPPORT_PER_ITEM_HPP

#include <benchmark/benchmark.h>

#include <cstddef>

namespace kelp::input::quill::bench {

/// Adds a column to a benchmark's row: the time of one run, divided by `items`.
inline void report_per_item(benchmark::State& state, std::size_t items) {
  using Counter = benchmark::Counter;
  state.counters["per_item"] =
      Counter(static_cast<double>(items), Counter::kIsIterationInvariantRate | Counter::kInvert);
}

}  // namespace kelp::input::quill::bench

#endif  // KELP_INPUT_QUILL_BENCH_SUPPORT_PER_ITEM_HPP
