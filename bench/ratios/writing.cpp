#include <benchmark/benchmark.h>

#include <cstddef>
#include <string>

#include "kelp/input/quill/quill.hpp"
#include "ratios/ratios.hpp"
#include "reference/bare_loops.hpp"
#include "support/inputs.hpp"
#include "support/scratch_path.hpp"

namespace kelp::input::quill::bench {

namespace {

Work writing(const QuillInput& input, int times = 1) {
  return [&input, times] {
    for (int i = 0; i < times; ++i) benchmark::DoNotOptimize(input.to_string());
  };
}

void compare_with_references(RatioTable& table, std::size_t atoms, const std::string& size) {
  const QuillInput input = molecule(atoms);
  const std::string to_chars_row = "write " + size + " atoms : to_chars into a reserved string";
  require_same(input.to_string() == write_with_to_chars(input), to_chars_row);
  table.compare(
      to_chars_row, writing(input),
      [&input] { benchmark::DoNotOptimize(write_with_to_chars(input)); }, 0.42);

  const QuillInput geometry({}, input.geometry);
  const std::string stream_row = "write " + size + " atoms : string stream";
  require_same(geometry.to_string() == write_with_stream(geometry), stream_row);
  table.compare(
      stream_row, writing(geometry),
      [&geometry] { benchmark::DoNotOptimize(write_with_stream(geometry)); }, 0.10);
}

void compare_post_lines(RatioTable& table) {
  const QuillInput input = constraints_and_scans(10'000);
  const std::string what = "write 10^4 post-processing lines : bare loop into one buffer";
  require_same(input.to_string() == write_constraints_and_scans(input.post_commands), what);
  table.compare(
      what, writing(input),
      [&input] { benchmark::DoNotOptimize(write_constraints_and_scans(input.post_commands)); },
      1.15);
}

void compare_file_with_string(RatioTable& table, std::size_t atoms, const std::string& size) {
  const ScratchPath file;
  const QuillInput input = molecule(atoms);
  const std::string what = "write_file " + size + " atoms : to_string";
  input.write_file(file.path());
  require_same(parse_file(file.path()).input.to_string() == input.to_string(), what);
  // The file system takes some time for every byte. The faster the text is made, the larger is the
  // part of that time in this ratio.
  table.compare_with_floor(
      what, [&] { input.write_file(file.path()); },
      [&] { require_same(write_bare_file(file.path(), input.to_string()), what); }, writing(input),
      1.20);
}

void compare_sizes(RatioTable& table) {
  const QuillInput large = molecule(1'000'000);
  const QuillInput small = molecule(10'000);
  table.compare("write, per atom, 10^6 atoms : 10^4 atoms", writing(large), writing(small, 100),
                1.5);
}

}  // namespace

void add_writing_ratios(RatioTable& table) {
  compare_with_references(table, 10'000, "10^4");
  compare_with_references(table, 100'000, "10^5");
  compare_post_lines(table);
  compare_file_with_string(table, 10'000, "10^4");
  compare_file_with_string(table, 100'000, "10^5");
  compare_sizes(table);
}

}  // namespace kelp::input::quill::bench
