// Only reads or writes ten thousand atoms, many times, for a profiler.

#include <benchmark/benchmark.h>

#include <cstddef>
#include <iostream>
#include <string>
#include <string_view>

#include "kelp/input/quill/quill.hpp"
#include "support/inputs.hpp"

using namespace kelp::input::quill;

int main(int argc, char** argv) {
  constexpr std::size_t atoms = 10'000;
  constexpr int times = 20;
  const std::string_view what = argc == 2 ? argv[1] : "";
  if (what != "read" && what != "write") {
    std::cerr << "usage: kelp_quill_inp_profiled read|write\n";
    return 2;
  }
  const QuillInput input = bench::molecule(atoms);
  const std::string text = input.to_string();
  for (int i = 0; i < times; ++i) {
    if (what == "read") {
      benchmark::DoNotOptimize(parse_string(text));
    } else {
      benchmark::DoNotOptimize(input.to_string());
    }
  }
  return 0;
}
