#ifndef KELP_INPUT_QUILL_LINT_MENDING_HPP
#define KELP_INPUT_QUILL_LINT_MENDING_HPP

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "kelp/input/quill/lossless/read_text.hpp"
#include "lint/finding.hpp"
#include "lint/source.hpp"

namespace kelp::input::quill::lint {

/// A text after its mends, and how many findings were mended.
struct MendedText {
  lossless::ReadText read = {};
  std::size_t count = 0;
};

/// Returns the edits of all safe mends of these findings, in order. Of mends that overlap, or that
/// insert in the same place, the first one is taken whole and the others wait for another round.
/// `count` becomes the number of mends that were taken.
std::vector<ByteEdit> safe_edits(const Findings& findings, std::size_t& count);

/// Mends a text, reads it again and mends what is then found, until nothing is left to mend.
/// Findings for which `is_wanted` is false are not mended. Only one text is kept at a time with
/// what the reader made of it, which takes much more memory.
MendedText mend(lossless::ReadText read, const Options& options,
                const std::function<bool(const Finding&)>& is_wanted);

}  // namespace kelp::input::quill::lint

#endif  // KELP_INPUT_QUILL_LINT_MENDING_HPP
