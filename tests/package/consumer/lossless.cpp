// Uses the library for programs that edit files, and through it the others. Ends with 0 when the
// edited text is right; if not, it prints that text.

#include <iostream>
#include <kelp/input/quill/lossless/surgical_edit.hpp>
#include <kelp/input/quill/lossless/wording.hpp>

using namespace kelp::input::quill;

int main() {
  const lossless::ReadText read = lossless::read_text("# Opt\n0   1\nHe 0 0  0\n");
  lossless::TrackedDocument document(read.result.input);
  document.set_parameter("opt", "maxiter", "100");
  const lossless::SurgicalEdit edit = lossless::render(read, document);
  if (edit.proof.holds() && edit.text == "#Opt(maxiter=100)\n0   1\nHe 0 0  0\n") return 0;
  std::cerr << edit.text << lossless::words(edit.proof, document.document()) << "\n";
  return 1;
}
