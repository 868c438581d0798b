#include <benchmark/benchmark.h>

#include <cstddef>
#include <string>

#include "kelp/input/quill/quill.hpp"
#include "ratios/ratios.hpp"
#include "reference/bare_loops.hpp"
#include "support/comparison.hpp"
#include "support/inputs.hpp"
#include "support/scratch_path.hpp"

namespace kelp::input::quill::bench {

namespace {

using Reader = ParseResult (*)(std::string_view);

Work reading(const std::string& text, Reader read, int times = 1) {
  return [&text, read, times] {
    for (int i = 0; i < times; ++i) benchmark::DoNotOptimize(read(text));
  };
}

void compare_readers(RatioTable& table, const std::string& what, const std::string& text,
                     Reader reference, double at_most) {
  require_same(parse_string(text) == reference(text), what);
  table.compare(what, reading(text, parse_string), reading(text, reference), at_most);
}

void compare_with_plain_functions(RatioTable& table) {
  const auto add = [&table](std::size_t atoms, const std::string& size, double at_most) {
    compare_readers(table, "read " + size + " atoms : plain contract loop",
                    molecule(atoms).to_string(), read_with_plain_functions, at_most);
  };
  add(10, "10", 0.90);
  add(100, "100", 0.90);
  add(10'000, "10^4", 0.80);
  add(100'000, "10^5", 0.90);
  add(1'000'000, "10^6", 0.90);
}

void compare_with_own_functions(RatioTable& table) {
  const auto add = [&table](const QuillInput& input, const std::string& what, double at_most) {
    compare_readers(table, "read " + what + " : own functions in a bare loop", input.to_string(),
                    read_with_own_functions, at_most);
  };
  add(molecule(10'000), "10^4 atoms", 1.04);
  add(molecule(100'000), "10^5 atoms", 1.04);
  add(header_heavy(2'000), "2,000 header lines", 1.15);
  add(post_heavy(10'000), "10^4 post-processing lines", 1.05);
}

void compare_file_with_string(RatioTable& table, std::size_t atoms, const std::string& size) {
  const ScratchPath file;
  const QuillInput input = molecule(atoms);
  const std::string text = input.to_string();
  input.write_file(file.path());
  const std::string what = "parse_file " + size + " atoms : parse_string";
  require_same(parse_file(file.path()) == parse_string(text), what);
  const Work read_file = [&file] { benchmark::DoNotOptimize(parse_file(file.path())); };
  table.compare(what, read_file, reading(text, parse_string), 1.12);
}

void compare_sizes(RatioTable& table) {
  const std::string large = molecule(1'000'000).to_string();
  const std::string small = molecule(10'000).to_string();
  table.compare("read, per atom, 10^6 atoms : 10^4 atoms", reading(large, parse_string),
                reading(small, parse_string, 100), 1.5);
}

}  // namespace

void add_reading_ratios(RatioTable& table) {
  compare_with_plain_functions(table);
  compare_with_own_functions(table);
  compare_file_with_string(table, 10'000, "10^4");
  compare_file_with_string(table, 100'000, "10^5");
  compare_sizes(table);
}

}  // namespace kelp::input::quill::bench
