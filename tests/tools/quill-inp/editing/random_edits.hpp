#ifndef KELP_INPUT_QUILL_TESTS_TOOLS_QUILL_INP_EDITING_RANDOM_EDITS_HPP
#define KELP_INPUT_QUILL_TESTS_TOOLS_QUILL_INP_EDITING_RANDOM_EDITS_HPP

#include <cstddef>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include "kelp/input/quill/editor.hpp"

namespace kelp::input::quill::tool {

/// Makes inputs and edits; the same ones for the same seed on every machine.
class Random {
 public:
  explicit Random(unsigned seed) : engine_(seed) {}

  std::size_t below(std::size_t limit) { return engine_() % limit; }
  bool one_in(std::size_t count) { return below(count) == 0; }

  template <typename T>
  const T& any_of(const std::vector<T>& values) {
    return values[below(values.size())];
  }

 private:
  std::mt19937 engine_;
};

/// A call of the program, and what it does to a document, said with the library's editor.
struct EditCall {
  std::vector<std::string> arguments = {};
  std::vector<std::function<void(InputEditor&)>> meaning = {};
};

/// Returns the text of an input with any of the things that inputs may have, careless ones too.
std::string random_input(Random& random);

/// Returns a call of "set", "unset" or "add", without a file.
EditCall random_call(Random& random);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TESTS_TOOLS_QUILL_INP_EDITING_RANDOM_EDITS_HPP
