// Uses something from every part of the library, inline and compiled code. Ends with 0 when all
// results are right; if not, it says which one is wrong.
//
//   consumer [stand-ins]
//
// The stand-ins for the sister libraries know an element that does not exist, so that they can be
// told from those that come with the library.

#include <exception>
#include <iostream>
#include <kelp/chem/elements.hpp>
#include <kelp/core/geometry.hpp>
#include <kelp/core/text.hpp>
#include <kelp/input/quill/quill.hpp>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

using namespace kelp::input::quill;

namespace {

bool is_as_expected(std::string_view what, const std::string& actual, const std::string& expected) {
  if (actual == expected) return true;
  std::cerr << what << " is\n" << actual << "\nand should be\n" << expected << "\n";
  return false;
}

bool reads_and_edits() {
  ParseResult result = parse_string("#opt(maxiter=50)\n0 1\nh 0 0 0\nCl 0 0 1.27\nB 1 2\n");
  InputEditor editor(std::move(result.input));
  editor.set_parameter("opt", "maxiter", "100");
  return is_as_expected("the edited input", editor.to_string(),
                        "#opt(maxiter=100)\n\n0 1\n"
                        "H        0.000000      0.000000      0.000000\n"
                        "Cl       0.000000      0.000000      1.270000\n\n"
                        "B 1 2\n");
}

bool builds_from_a_geometry_of_the_family() {
  kelp::core::Geometry hydrogen;
  hydrogen.atoms.resize(2);
  hydrogen.atoms[0].symbol = "H";
  hydrogen.atoms[1].symbol = kelp::chem::elements::normalize_symbol("h");
  hydrogen.atoms[1].z = 0.74;
  const QuillInput input = InputBuilder().set_task("sp").set_geometry(hydrogen).document();
  return is_as_expected("the built input", input.to_string(),
                        "#sp\n\n"
                        "H        0.000000      0.000000      0.000000\n"
                        "H        0.000000      0.000000      0.740000\n");
}

bool throws_what_a_program_can_catch() {
  try {
    QuillInput().write_file("/no/such/folder/input.qin");
  } catch (const std::exception& failure) {
    return is_as_expected("the failure", failure.what(),
                          "Failed to open QUILL input for writing: /no/such/folder/input.qin");
  }
  std::cerr << "writing into a folder that is not there threw nothing\n";
  return false;
}

bool has_the_right_sisters(bool are_stand_ins) {
  const std::vector<std::string> warnings = parse_string("0 1\nZz 0 0 0\n").warnings;
  std::string text;
  for (const std::string& warning : warnings) text += warning;
  return is_as_expected("what is said of element Zz", text,
                        are_stand_ins ? "" : "Line 2: unknown element symbol 'Zz'");
}

}  // namespace

int main(int argc, char** argv) {
  const bool has_stand_ins = argc == 2 && kelp::core::text::trim(argv[1]) == "stand-ins";
  return reads_and_edits() && builds_from_a_geometry_of_the_family() &&
                 throws_what_a_program_can_catch() && has_the_right_sisters(has_stand_ins)
             ? 0
             : 1;
}
