// Sets the number of iterations of the optimisation in a QUILL input, and prints the new text.
// Every line that says the same stays as it is, byte for byte, and the new text is proved before it
// is printed.
//
//   edit_text INPUT ITERATIONS
//
// The exit status is 0 when the new text was printed, 1 when it would not say what is wanted or the
// input could not be read, 2 for wrong usage.

#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

#include "kelp/input/quill/lossless/surgical_edit.hpp"
#include "kelp/input/quill/lossless/wording.hpp"

namespace lossless = kelp::input::quill::lossless;

namespace {

bool edit(const std::string& text, const std::string& iterations) {
  const lossless::ReadText read = lossless::read_text(text);
  lossless::TrackedDocument document(read.result.input);
  document.set_parameter("opt", "maxiter", iterations);

  const lossless::SurgicalEdit edit = lossless::render(read, document);
  for (const lossless::QuotingProblem& problem : edit.quoting_problems)
    std::cerr << lossless::words(problem) << "\n";
  if (!edit.proof.holds()) {
    std::cerr << lossless::words(edit.proof, document.document()) << "\n";
    return false;
  }
  for (const lossless::LineChange& change : edit.changes) {
    if (change.new_line) std::cerr << "line " << *change.new_line << " is new or changed\n";
  }
  std::cout << edit.text;
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: edit_text INPUT ITERATIONS\n";
    return 2;
  }
  std::ifstream file(argv[1], std::ios_base::binary);
  if (!file) {
    std::cerr << "cannot open " << argv[1] << "\n";
    return 1;
  }
  const std::string text{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  return edit(text, argv[2]) ? 0 : 1;
}
