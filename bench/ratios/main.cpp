// Prints the cost of the library as ratios to other ways to do the same, measured in turns in one
// run. See docs/performance.md.

#include <charconv>
#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include "ratios/ratios.hpp"

using namespace kelp::input::quill::bench;

namespace {

constexpr int usual_rounds = 31;

struct Options {
  bool check = false;
  int rounds = usual_rounds;
  std::string only;
};

bool read_options(const std::vector<std::string>& arguments, Options& options) {
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    if (arguments[i] == "--check") {
      options.check = true;
    } else if (arguments[i] == "--rounds" && i + 1 < arguments.size()) {
      options.rounds = 0;
      const std::string& number = arguments[++i];
      std::from_chars(number.data(), number.data() + number.size(), options.rounds);
    } else if (arguments[i] == "--only" && i + 1 < arguments.size()) {
      options.only = arguments[++i];
    } else {
      return false;
    }
  }
  return options.rounds > 0;
}

bool print_table(const Options& options) {
  RatioTable table(std::cout, options.rounds, options.only);
  add_heap_ratios(table);
  add_reading_ratios(table);
  add_writing_ratios(table);
  add_small_job_ratios(table);
  add_builder_ratios(table);
  add_start_ratios(table);
  add_language_server_ratios(table);
  add_tool_ratios(table);
  return table.all_met();
}

}  // namespace

int main(int argc, char** argv) {
  Options options;
  if (!read_options(std::vector<std::string>(argv + 1, argv + argc), options)) {
    std::cerr << "usage: kelp_quill_inp_ratios [--check] [--rounds N] [--only TEXT]\n"
                 "  --check     fail when a ratio is above its limit\n"
                 "  --rounds N  time everything N times, "
              << usual_rounds
              << " unless told\n"
                 "  --only TEXT show the rows that contain this text\n";
    return 2;
  }
  try {
    const bool all_met = print_table(options);
    return options.check && !all_met ? 1 : 0;
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 2;
  }
}
