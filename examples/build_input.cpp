// Builds an input for the optimisation of formaldehyde and writes it to a file.
//
//   build_input OUTPUT
//
// The structure is the experimental one, r(C=O) = 1.205 A, r(C-H) = 1.111 A and an H-C-O angle of
// 121.9 degrees, with the C=O bond along z: the hydrogens are at x = +-1.111 sin(121.9),
// z = 1.111 cos(121.9). The exit status is 0 when the output was written, 1 when it could not be
// opened, 2 for wrong usage.

#include <exception>
#include <iostream>

#include "kelp/input/quill/quill.hpp"

using kelp::input::quill::AtomRecord;
using kelp::input::quill::InputBuilder;

namespace {

InputBuilder formaldehyde() {
  InputBuilder builder;
  // The bond constraint comes first: an angle constraint right after inline atoms has the form of
  // an atom line and would be read as one.
  builder.set_task("opt", {{"maxiter", "50"}, {"tight"}})
      .set_model("m1")
      .set_device("gpu")
      .set_charge_and_multiplicity(0, 1)
      .add_atom(AtomRecord{"C", 0.0, 0.0, 0.0})
      .add_atom(AtomRecord{"O", 0.0, 0.0, 1.205})
      .add_atom(AtomRecord{"H", 0.943208, 0.0, -0.587095})
      .add_atom(AtomRecord{"H", -0.943208, 0.0, -0.587095})
      .add_bond_constraint(1, 3)
      .add_angle_constraint(2, 1, 3)
      .add_scan({1, 2}, 1.5, 10);
  return builder;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: build_input OUTPUT\n";
    return 2;
  }
  try {
    const InputBuilder builder = formaldehyde();
    builder.write_file(argv[1]);
    std::cout << builder.to_string();
    return 0;
  } catch (const std::exception& failure) {
    std::cerr << failure.what() << "\n";
    return 1;
  }
}
