// Allows the optimisation in a QUILL input 100 iterations and writes the input to another file.
//
//   edit_input INPUT OUTPUT
//
// The exit status is 0 when the output was written, 1 when a file could not be opened, 2 for wrong
// usage.

#include <exception>
#include <iostream>

#include "kelp/input/quill/quill.hpp"

namespace quill = kelp::input::quill;

namespace {

int run(const char* path, const char* output) {
  quill::ParseResult result = quill::parse_file(path);
  if (!result.ok) {
    std::cerr << result.error << "\n";
    return 1;
  }
  for (const std::string& warning : result.warnings) std::cerr << path << ": " << warning << "\n";

  quill::InputEditor editor(std::move(result.input));
  const auto before = editor.get_parameter("opt", "maxiter");
  editor.set_parameter("opt", "maxiter", "100");
  editor.write_file(output);
  std::cout << "maxiter of opt: " << before.value_or("not set") << " -> 100\n";
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: edit_input INPUT OUTPUT\n";
    return 2;
  }
  try {
    return run(argv[1], argv[2]);
  } catch (const std::exception& failure) {
    std::cerr << failure.what() << "\n";
    return 1;
  }
}
