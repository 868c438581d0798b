#ifndef KELP_INPUT_QUILL_TESTS_TOOLS_QUILL_INP_SUPPORT_CALL_HPP
#define KELP_INPUT_QUILL_TESTS_TOOLS_QUILL_INP_SUPPORT_CALL_HPP

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "tools/quill-inp/support/program.hpp"

namespace kelp::input::quill::tool {

/// One row of a table: a call of the program in a folder with a few inputs, and its outcome.
struct Call {
  std::string_view name;
  std::vector<std::string> arguments;
  Outcome outcome;
  std::string input = {};
};

inline void PrintTo(const Call& call, std::ostream* stream) { *stream << call.name; }

/// Returns the outcome of a call that is refused, with a message about a line of a file.
Outcome refused_at(const std::string& name, int line, const std::string& message);

/// Runs the call in a separate folder, which contains only the files below, and expects its
/// outcome, and that the call did not change any of them.
///
///   water.qin     canonical: an optimisation, a model, charge and multiplicity, three atoms
///   by_hand.qin   the same in a layout of its own, with quotes, DOS line ends and no last line end
///   two_opts.qin  two commands of the same name, and a dropped line
///   bare.qin      one header line
///   water.xyz     the atoms of water
///   odd.xyz       an atom of an unknown element
void expect_outcome(const Call& call);

extern const char* const by_hand;
extern const char* const two_opts;

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TESTS_TOOLS_QUILL_INP_SUPPORT_CALL_HPP
