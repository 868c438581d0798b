#ifndef KELP_INPUT_QUILL_LINT_REWRITING_HPP
#define KELP_INPUT_QUILL_LINT_REWRITING_HPP

#include <cstddef>
#include <functional>

#include "lint/source.hpp"

// What the canonical layout would make of an input.

namespace kelp::input::quill::lint {

/// A number that is written with fewer digits than it has.
struct RoundedNumber {
  std::size_t line = 0;   // counted from 0
  std::size_t token = 0;  // of the line
  double change = 0.0;
};

/// Passes on the coordinates and scan values that change when they are written and read again, in
/// their order. Those that are not finite, and atoms whose written line would not be an atom line,
/// are left out.
void for_each_rounded_number(const Source& source,
                             const std::function<void(const RoundedNumber&)>& use);

/// Returns whether the line of an atom, as it is written, is an atom line with the same symbol and
/// three numbers. A large coordinate touches the one before it.
bool reads_back(const AtomRecord& atom);

/// Returns where a number is in the text.
Range range_of(const Source& source, const RoundedNumber& number);

}  // namespace kelp::input::quill::lint

#endif  // KELP_INPUT_QUILL_LINT_REWRITING_HPP
