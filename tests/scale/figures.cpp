// Prints the cost of reading the largest text of every shape, compared with half of that text; the
// least and the most of it; and the cost of the operations that are quadratic by contract.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <ctime>
#include <string>
#include <string_view>
#include <vector>

#include "kelp/input/quill/quill.hpp"
#include "scale/counted_memory.hpp"
#include "scale/shapes.hpp"

namespace kelp::input::quill {
namespace {

constexpr double bytes_per_megabyte = 1e6;
constexpr double nanoseconds_per_second = 1e9;

struct Cost {
  /// Processor time of this process alone: other programs hardly influence it.
  double seconds = 0.0;
  /// Bytes that were allocated at the same time, beyond those before the work.
  std::int64_t peak_bytes = 0;
};

template <typename Work>
Cost cost_of(Work work) {
  const MemoryCount memory;
  const std::clock_t start = std::clock();
  work();
  const std::clock_t end = std::clock();
  return {static_cast<double>(end - start) / CLOCKS_PER_SEC, memory.peak_bytes()};
}

struct Reading {
  Cost cost;
  std::size_t text_size = 0;
  bool is_read = false;
};

/// The best of three attempts: other programs can only make the time longer.
Reading reading_of(const Shape& shape, std::size_t size) {
  const std::string text = shape.text(size);
  Reading best;
  for (int attempt = 0; attempt < 3; ++attempt) {
    ParseResult result;
    const Cost cost = cost_of([&] { result = parse_string(text); });
    const bool is_best = attempt == 0 || cost.seconds < best.cost.seconds;
    if (is_best) best = {cost, text.size(), shape.is_read(result, size)};
  }
  return best;
}

struct Figures {
  std::string_view shape;
  double nanoseconds_per_byte = 0.0;
  double memory_per_byte = 0.0;
  double time_against_half = 0.0;
  double memory_against_half = 0.0;
  /// Whether what was read was what was asked for.
  bool is_read = false;
};

Figures print_reading(const Shape& shape) {
  const Reading half = reading_of(shape, shape.full_size / 2);
  const Reading full = reading_of(shape, shape.full_size);
  const auto size = static_cast<double>(full.text_size);
  const auto memory = static_cast<double>(full.cost.peak_bytes);
  const Figures figures = {shape.name,
                           full.cost.seconds * nanoseconds_per_second / size,
                           memory / size,
                           full.cost.seconds / half.cost.seconds,
                           memory / static_cast<double>(half.cost.peak_bytes),
                           half.is_read && full.is_read};
  std::printf("%-26.*s %10zu %8.1f %8.2f %8.2f %8.2f %8.2f %8.2f\n",
              static_cast<int>(shape.name.size()), shape.name.data(), shape.full_size,
              size / bytes_per_megabyte, full.cost.seconds, figures.nanoseconds_per_byte,
              figures.memory_per_byte, figures.time_against_half, figures.memory_against_half);
  return figures;
}

void print_range(const char* what, const std::vector<Figures>& all, double Figures::*figure) {
  const auto [least, most] = std::minmax_element(
      all.begin(), all.end(),
      [&](const Figures& left, const Figures& right) { return left.*figure < right.*figure; });
  std::printf("%-32s %8.2f  %-26.*s %8.2f  %.*s\n", what, *least.*figure,
              static_cast<int>(least->shape.size()), least->shape.data(), *most.*figure,
              static_cast<int>(most->shape.size()), most->shape.data());
}

template <typename Work>
void print_growth(const char* what, std::size_t size, Work work) {
  const double first = cost_of([&] { work(size); }).seconds;
  const double second = cost_of([&] { work(2 * size); }).seconds;
  std::printf("%-44s %7zu %8.3f %9zu %8.3f %8.2f\n", what, size, first, 2 * size, second,
              second / first);
}

void add_atoms_to_a_builder(std::size_t n) {
  InputBuilder builder;
  for (std::size_t i = 0; i < n; ++i) builder.add_atom(AtomRecord{"H", 0.0, 0.0, 0.0});
}

void set_flags_of_other_names(std::size_t n) {
  InputEditor editor{QuillInput()};
  for (std::size_t i = 0; i < n; ++i) editor.set_flag("flag" + std::to_string(i));
}

void find_every_occurrence(std::size_t n) {
  QuillInput document;
  document.commands.assign(n, HeaderCommand{"opt"});
  for (std::size_t i = 0; i < n; ++i)
    document.commands[i].value = document.find_command("opt", i)->name;
}

int print_figures() {
  std::printf("%-26s %10s %8s %8s %8s %8s %17s\n", "", "", "", "", "", "memory", "against half");
  std::printf("%-26s %10s %8s %8s %8s %8s %8s %8s\n", "reading", "size", "MB", "s", "ns/byte",
              "/byte", "time", "memory");
  std::vector<Figures> all;
  for (const Shape& shape : shapes()) all.push_back(print_reading(shape));

  std::printf("\nof %2zu shapes of text, reading     %8s  %-26s %8s\n", all.size(), "least", "",
              "most");
  print_range("ns for a byte", all, &Figures::nanoseconds_per_byte);
  print_range("bytes of memory for a byte", all, &Figures::memory_per_byte);
  print_range("memory against half of the text", all, &Figures::memory_against_half);

  std::printf("\n%-44s %7s %8s %9s %8s %8s\n", "quadratic by contract", "size", "s", "twice", "s",
              "ratio");
  print_growth("adding atoms to a builder, one by one", 1000, add_atoms_to_a_builder);
  print_growth("setting flags of different names", 1000, set_flags_of_other_names);
  print_growth("finding every command of one name", 1000, find_every_occurrence);
  const bool is_read =
      std::all_of(all.begin(), all.end(), [](const Figures& figures) { return figures.is_read; });
  return is_read ? 0 : 1;
}

}  // namespace
}  // namespace kelp::input::quill

int main() { return kelp::input::quill::print_figures(); }
