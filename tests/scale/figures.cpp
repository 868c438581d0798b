// Prints what reading texts of every shape costs where they are as large as they get, and what is
// quadratic by contract costs as it grows.

#include <cstddef>
#include <cstdio>
#include <string>

#include "kelp/input/quill/quill.hpp"
#include "scale/measuring.hpp"
#include "scale/shapes.hpp"

namespace kelp::input::quill {
namespace {

constexpr double bytes_per_megabyte = 1e6;
constexpr double nanoseconds_per_second = 1e9;

/// Returns whether what was read was what was asked for.
bool print_reading(const Shape& shape) {
  const std::string text = shape.text(shape.full_size);
  ParseResult result;
  const Cost cost = cost_of([&] { result = parse_string(text); });
  const auto size = static_cast<double>(text.size());
  std::printf("%-26.*s %10zu %8.1f %8.2f %8.2f %8.2f\n", static_cast<int>(shape.name.size()),
              shape.name.data(), shape.full_size, size / bytes_per_megabyte, cost.seconds,
              cost.seconds * nanoseconds_per_second / size,
              static_cast<double>(cost.peak_bytes) / size);
  return shape.is_read(result, shape.full_size);
}

template <typename Work>
void print_growth(const char* what, std::size_t size, Work work) {
  const double first = cost_of([&] { work(size); }).seconds;
  const double second = cost_of([&] { work(2 * size); }).seconds;
  std::printf("%-44s %7zu %8.3f %9zu %8.3f\n", what, size, first, 2 * size, second);
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
  std::printf("%-26s %10s %8s %8s %8s %8s\n", "reading", "size", "MB", "s", "ns/byte", "byte/byte");
  bool is_read = true;
  for (const Shape& shape : shapes()) is_read = print_reading(shape) && is_read;

  std::printf("\n%-44s %7s %8s %9s %8s\n", "quadratic by contract", "size", "s", "twice", "s");
  print_growth("adding atoms to a builder, one by one", 1000, add_atoms_to_a_builder);
  print_growth("setting flags of different names", 1000, set_flags_of_other_names);
  print_growth("finding every command of one name", 1000, find_every_occurrence);
  return is_read ? 0 : 1;
}

}  // namespace
}  // namespace kelp::input::quill

int main() { return kelp::input::quill::print_figures(); }
