// Prints how long reading and writing take on this machine: the median of many rounds, in the time
// of the processor. docs/performance.md shows it; what is compared with limits are ratios, which
// change less from machine to machine.

#include <benchmark/benchmark.h>

#include <cstdio>
#include <fstream>
#include <string>
#include <utility>

#include "kelp/input/quill/quill.hpp"
#include "support/inputs.hpp"
#include "support/time_ratio.hpp"

namespace kelp::input::quill::bench {

namespace {

constexpr int rounds = 31;

std::string name_of_processor() {
  std::ifstream info("/proc/cpuinfo");
  const std::string key = "model name\t: ";
  for (std::string line; std::getline(info, line);)
    if (line.compare(0, key.size(), key) == 0) return line.substr(key.size());
  return "unknown processor";
}

std::string in_units(double seconds) {
  char text[32];
  if (seconds < 1e-3) {
    std::snprintf(text, sizeof text, "%.3g us", seconds * 1e6);
  } else {
    std::snprintf(text, sizeof text, "%.3g ms", seconds * 1e3);
  }
  return text;
}

void print_row(const std::string& what, double seconds, std::size_t bytes) {
  const double megabytes = static_cast<double>(bytes) / 1e6 / seconds;
  std::printf("%-44s %10s %8.0f MB/s\n", what.c_str(), in_units(seconds).c_str(), megabytes);
}

void print_times_of(const QuillInput& input, const std::string& size) {
  const std::string text = input.to_string();
  print_row("read " + size,
            median_time([&] { benchmark::DoNotOptimize(parse_string(text)); }, rounds),
            text.size());
  print_row("write " + size,
            median_time([&] { benchmark::DoNotOptimize(input.to_string()); }, rounds), text.size());
}

std::string changed(const std::string& text) {
  InputEditor editor(parse_string(text).input);
  editor.set_parameter("opt", "maxiter", "250");
  return editor.to_string();
}

void print_all() {
  std::printf("%-44s %10s %13s\n", name_of_processor().c_str(), "time", "text");
  const std::string text = small_job().to_string();
  print_row("read, set a parameter, write 30 atoms",
            median_time([&] { benchmark::DoNotOptimize(changed(text)); }, rounds), text.size());
  print_times_of(molecule(100), "100 atoms");
  print_times_of(molecule(10000), "10,000 atoms");
  print_times_of(molecule(1000000), "1,000,000 atoms");
}

}  // namespace

}  // namespace kelp::input::quill::bench

int main() {
  kelp::input::quill::bench::print_all();
  return 0;
}
