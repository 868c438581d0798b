// Sets the number of iterations of the optimisation in a file, as an editor with a "Save" does it.
// Every line that says the same stays as it is, byte for byte. The new text is proved before it is
// written, and the file is replaced as a whole: nobody ever sees half a text, and nothing that
// another program wrote meanwhile is lost.
//
//   edit_text INPUT ITERATIONS
//
// The exit status is 0 when the file has the new text, 1 when it has its old one, since the new one
// would not say what is wanted or the file could not be replaced, and 2 for wrong usage.

#include <iostream>
#include <string>

#include "kelp/input/quill/lossless/file_replacement.hpp"
#include "kelp/input/quill/lossless/surgical_edit.hpp"
#include "kelp/input/quill/lossless/wording.hpp"

namespace lossless = kelp::input::quill::lossless;

namespace {

bool edit(const std::string& path, const std::string& iterations) {
  lossless::FileToReplace file = lossless::open_to_replace(path);
  const lossless::ReadText read = lossless::read_text(file.text());
  lossless::TrackedDocument document(read.result.input);
  document.set_parameter("opt", "maxiter", iterations);

  const lossless::SurgicalEdit edit = lossless::render(read, document);
  for (const lossless::QuotingProblem& problem : edit.quoting_problems)
    std::cerr << lossless::words(problem) << "\n";
  if (!edit.proof.holds()) {
    std::cerr << lossless::words(edit.proof, document.document()) << "\n";
    return false;
  }
  for (const lossless::LostAttribute& lost : file.replace(edit.text))
    std::cerr << lossless::words(lost) << "\n";
  for (const lossless::LineChange& change : edit.changes) {
    if (change.new_line) std::cout << "line " << *change.new_line << " is new or changed\n";
  }
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: edit_text INPUT ITERATIONS\n";
    return 2;
  }
  try {
    return edit(argv[1], argv[2]) ? 0 : 1;
  } catch (const lossless::FileError& error) {
    std::cerr << error.what() << "\n";
    return 1;
  }
}
