#include <benchmark/benchmark.h>

#include <cstddef>
#include <string>

#include "kelp/input/quill/quill.hpp"
#include "ratios/ratios.hpp"
#include "support/heap_use.hpp"
#include "support/inputs.hpp"
#include "support/scratch_path.hpp"

namespace kelp::input::quill::bench {

void add_heap_ratios(RatioTable& table) {
  constexpr std::size_t atoms = 100'000;
  const QuillInput input = molecule(atoms);
  const std::string text = input.to_string();
  const ScratchPath file;
  input.write_file(file.path());

  const HeapUse reading = measure_heap_use([&] { benchmark::DoNotOptimize(parse_string(text)); });
  const HeapUse reading_file =
      measure_heap_use([&] { benchmark::DoNotOptimize(parse_file(file.path())); });
  const HeapUse writing = measure_heap_use([&] { benchmark::DoNotOptimize(input.to_string()); });

  const auto per_atom = [](std::uint64_t count) { return static_cast<double>(count) / atoms; };
  const auto per_byte = [&text](std::uint64_t bytes) {
    return static_cast<double>(bytes) / static_cast<double>(text.size());
  };
  table.record("allocations of parse_string : atom lines, 10^5", per_atom(reading.allocations),
               2.05);
  table.record("allocations of to_string", static_cast<double>(writing.allocations), 2.0);
  table.record("peak heap of parse_string : size of the text, 10^5", per_byte(reading.peak_bytes),
               3.2);
  table.record("peak heap of parse_file : size of the text, 10^5",
               per_byte(reading_file.peak_bytes), 4.2);
  table.record("peak heap of to_string : size of the text, 10^5", per_byte(writing.peak_bytes),
               1.05);
}

}  // namespace kelp::input::quill::bench
