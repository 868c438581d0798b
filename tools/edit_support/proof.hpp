#ifndef KELP_INPUT_QUILL_EDIT_SUPPORT_PROOF_HPP
#define KELP_INPUT_QUILL_EDIT_SUPPORT_PROOF_HPP

// The proof that a text says what was meant, to be had before the text is written anywhere.
//
//   const Proof proof = prove(text, meant, 1e-6);
//   if (!proof.holds()) return refuse(proof.explanation);
//
// The text is read by the library's own reader and compared, member by member, with the document
// that was meant. The QUILL format has texts that its writer can produce and its reader understands
// in another way; the explanation names the line concerned and, where there is one, the way out.

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "edit_support/document_difference.hpp"
#include "kelp/input/quill/reader.hpp"

namespace kelp::input::quill::edit_support {

/// The outcome of reading a text again. `explanation` is empty when the proof holds; otherwise it
/// is the first difference in words, without a full stop: "line 14 would be read as an atom of
/// element A, not as an angle constraint; another post-processing line in front of it avoids that".
/// `line` is the number, counted from 1, of the line that it speaks of, if it speaks of one.
/// `comparison` has every difference, for whoever writes the text all the same, and the numbers
/// that changed. `found` is what the text reads as.
struct Proof {
  std::string explanation = {};
  std::optional<std::size_t> line = std::nullopt;
  DocumentComparison comparison = {};
  ParseResult found = {};

  bool holds() const { return comparison.equal(); }
};

/// Reads `text` and compares it with `meant`; numbers may change by up to `max_change`, see
/// compare(). Lines of the text that mean nothing to the reader, blank or dropped with a warning,
/// are no difference as long as nothing else was meant by them.
Proof prove(std::string_view text, const QuillInput& meant, double max_change = 0.0);

}  // namespace kelp::input::quill::edit_support

#endif  // KELP_INPUT_QUILL_EDIT_SUPPORT_PROOF_HPP
