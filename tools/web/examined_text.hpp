#ifndef KELP_INPUT_QUILL_WEB_EXAMINED_TEXT_HPP
#define KELP_INPUT_QUILL_WEB_EXAMINED_TEXT_HPP

#include <string>
#include <vector>

#include "kelp/input/quill/lossless/read_text.hpp"
#include "lint/lint.hpp"
#include "quill-inp/editing/wording.hpp"

namespace kelp::input::quill::web {

/// A text, and everything that a page shows about it.
struct ExaminedText {
  lossless::ReadText read = {};
  lint::FirstFindings found = {};  // by all rules but those about other files
  std::string canonical_text = {};

  /// Why the program refuses to put the canonical text in the place of the text: what would be
  /// lost, at most as much as a person reads, or that the text does not look like an input.
  std::vector<tool::LossWords> losses = {};
};

/// Reads a text and finds out all that. Nothing is thrown for any content.
ExaminedText examine(std::string text);

/// Returns the text after all its safe mends.
std::string mended_text(const ExaminedText& examined);

}  // namespace kelp::input::quill::web

#endif  // KELP_INPUT_QUILL_WEB_EXAMINED_TEXT_HPP
