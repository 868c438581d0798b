#include <benchmark/benchmark.h>

#include <sstream>
#include <string>
#include <vector>

#include "kelp/input/quill/quill.hpp"
#include "lint/lint.hpp"
#include "quill-inp/findings/file_report.hpp"
#include "quill-inp/run.hpp"
#include "ratios/ratios.hpp"
#include "support/inputs.hpp"
#include "support/many_inputs.hpp"

namespace kelp::input::quill::bench {

namespace {

/// Takes everything and keeps nothing.
class Nowhere : public std::streambuf {
  int_type overflow(int_type c) override { return traits_type::not_eof(c); }
  std::streamsize xsputn(const char* /*text*/, std::streamsize size) override { return size; }
};

/// One call of the program in this process. A call that ends in trouble measures nothing.
void call(const std::vector<std::string>& arguments) {
  Nowhere nowhere;
  std::istringstream in;
  std::ostream out(&nowhere);
  std::ostream err(&nowhere);
  require_same(tool::run(arguments, {in, out, err}) < 2, "quill-inp " + arguments.front());
}

/// A verb with some arguments for all files of a list.
Work verb(const ManyInputs& inputs, std::vector<std::string> arguments) {
  arguments.push_back("--files-from=" + inputs.list());
  return [arguments] { call(arguments); };
}

void compare_with_parse_file(RatioTable& table, const ManyInputs& inputs) {
  const Work parse_all = [&inputs] {
    for (const std::string& file : inputs.files()) benchmark::DoNotOptimize(parse_file(file));
  };
  const std::string reference = ", 10^4 small files : parse_file";
  table.compare("show" + reference, verb(inputs, {"show"}), parse_all, 2.5);
  table.compare("fmt --check" + reference, verb(inputs, {"fmt", "--check"}), parse_all, 2.5);
  table.compare("set" + reference, verb(inputs, {"set", "opt.maxiter=60"}), parse_all, 4.0);
}

void compare_lint(RatioTable& table, const ManyInputs& inputs) {
  table.compare("lint, 10^4 small files : show", verb(inputs, {"lint"}), verb(inputs, {"show"}),
                2.0);
  table.compare_elapsed("lint -j 2, 10^4 small files : -j 1", verb(inputs, {"lint", "-j2"}),
                        verb(inputs, {"lint", "-j1"}), 0.6);
}

/// The findings that the tool would show.
void compare_lint_with_reading(RatioTable& table, const std::string& row, const std::string& text) {
  const Work lint_text = [&text] {
    benchmark::DoNotOptimize(lint::find_first(lossless::read_text(text), lint::Options(),
                                              {tool::most_of_a_rule, tool::most_of_a_rule}));
  };
  table.compare(
      row + " : parse_string", lint_text, [&text] { benchmark::DoNotOptimize(parse_string(text)); },
      3.0);
}

void compare_lint_with_reading(RatioTable& table) {
  const ParseResult ferrocene =
      parse_file(KELP_QUILL_INP_EXAMPLE_INPUTS "/ferrocene_optimisation.qin");
  compare_lint_with_reading(table, "lint 10^6 atoms",
                            side_by_side(ferrocene.input, 1'000'000).to_string());
  compare_lint_with_reading(table, "lint 10^6 atoms at random places",
                            molecule(1'000'000).to_string());
}

}  // namespace

void add_tool_ratios(RatioTable& table) {
  compare_lint_with_reading(table);
  const ManyInputs inputs(10'000);
  compare_with_parse_file(table, inputs);
  compare_lint(table, inputs);
}

}  // namespace kelp::input::quill::bench
