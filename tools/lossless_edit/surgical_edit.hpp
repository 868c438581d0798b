#ifndef KELP_INPUT_QUILL_LOSSLESS_EDIT_SURGICAL_EDIT_HPP
#define KELP_INPUT_QUILL_LOSSLESS_EDIT_SURGICAL_EDIT_HPP

// Changing a text in the lines that must change and in no other byte.
//
//   const ReadText read = read_text(text);
//   TrackedDocument document(read.result.input);
//   document.set_parameter("opt", "maxiter", "100");
//   document.set_model("m2");
//   const SurgicalEdit edit = render(read, document);
//   if (edit.proof.holds()) write(edit.text);
//
// Layout, digits, blank lines, lines that the reader drops and line ends stay as they are, a
// missing last line end included. A changed header line is the library's to_string() of the
// command, with quotes where its values need them to read back. New lines take the line end of the
// line before them, or of the first line if there is none. A header line comes after the last
// header line, or in the place of one that was removed there; charge and multiplicity come before
// the coordinates, and post-processing lines after the last line that is not blank. Where a section
// comes into being, an empty line separates it from its neighbours. When the coordinates change,
// atoms and references that stay the same keep their lines, as far as they are at either end of
// the list or in the same place.

#include <string>
#include <vector>

#include "lossless_edit/edited_lines.hpp"
#include "lossless_edit/proof.hpp"
#include "lossless_edit/quoting.hpp"
#include "lossless_edit/read_text.hpp"
#include "lossless_edit/tracked_document.hpp"

namespace kelp::input::quill::lossless_edit {

/// A text that says what an edited document says. All members are there whether the proof holds or
/// not, so that a caller who accepts a loss can go on; `text` then is what comes closest.
struct SurgicalEdit {
  /// The new text.
  std::string text = {};
  /// Every line that is not as before, in the order of the new text, a removed line where it was.
  /// All other lines are in both texts, in the same order and byte for byte, but for one line end:
  /// that which a text without a last line end needs when a line is put after its last line, and
  /// loses when its last line goes.
  std::vector<LineChange> changes = {};
  /// Why pieces of changed header lines cannot be written; empty when all can.
  std::vector<QuotingProblem> quoting_problems = {};
  /// Whether `text` reads back as the document.
  Proof proof = {};
};

/// Changes the text of `read` to say what `document` says, which was made of the document of
/// `read`. Numbers may change by up to `max_change`, see compare().
SurgicalEdit render(const ReadText& read, const TrackedDocument& document, double max_change = 0.0);

}  // namespace kelp::input::quill::lossless_edit

#endif  // KELP_INPUT_QUILL_LOSSLESS_EDIT_SURGICAL_EDIT_HPP
