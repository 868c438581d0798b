#ifndef KELP_INPUT_QUILL_LOSSLESS_SURGICAL_EDIT_HPP
#define KELP_INPUT_QUILL_LOSSLESS_SURGICAL_EDIT_HPP

/// @file
/// Changes only those lines of a text that have to change.
///
///     const ReadText read = read_text("#OPT( maxiter = 50 )\n#model=m1\n0 1\nHe 0 0 0\n");
///     TrackedDocument document(read.result.input);
///     document.set_model("m2");
///     const SurgicalEdit edit = render(read, document);
///     edit.proof.holds();  // true
///     edit.text;           // "#OPT( maxiter = 50 )\n#model = m2\n0 1\nHe 0 0 0\n"
///
/// All other lines stay the same byte for byte: layout, digits, blank lines, lines that the reader
/// drops and line ends. A last line without a line end stays without one. A changed header line is
/// the library's to_string() of the command, with quotes around values that need them. A new line
/// gets the line end of the line before it, or of the first line if there is none before it.
///
/// A new header line comes after the last header line, or in the place of one that was removed
/// there; charge and multiplicity come before the coordinates, and post-processing lines after the
/// last line that is not blank. An empty line separates a new section from its neighbours. When the
/// coordinates change, atoms and references that are the same at either end of the list, or in the
/// same place, keep their lines.

#include <string>
#include <vector>

#include "kelp/input/quill/lossless/export.hpp"
#include "kelp/input/quill/lossless/line_change.hpp"
#include "kelp/input/quill/lossless/proof.hpp"
#include "kelp/input/quill/lossless/quoting.hpp"
#include "kelp/input/quill/lossless/read_text.hpp"
#include "kelp/input/quill/lossless/tracked_document.hpp"

namespace kelp::input::quill::lossless {

/// A text that should say what an edited document says; this is not proved yet. All members are set
/// even if something cannot be written; `text` is then the best that can be written.
struct NewText {
  /// The new text.
  std::string text = {};
  /// Every line that is not as before, in the order of the new text, with a removed line where it
  /// was. All other lines are in both texts, in the same order and byte for byte, except for one
  /// line end: when a text ends without a line end, its last line gets one if a line is added after
  /// it; if the last line is removed, the line before it loses its line end.
  std::vector<LineChange> changes = {};
  /// Why pieces of changed header lines cannot be written; empty when all can.
  std::vector<QuotingProblem> quoting_problems = {};
};

/// Such a text with its proof, set even if the proof does not hold, so that a caller who accepts a
/// loss can continue.
struct SurgicalEdit : NewText {
  /// Whether `text` reads back as the document.
  Proof proof = {};
};

/// Changes the text of `read` so that it says what `document` says. `document` was made from the
/// document of `read`. The caller has to prove() the text: the two steps are separate so that a
/// caller can free the memory of `read` between them.
KELP_QUILL_LOSSLESS_EXPORT NewText rewrite(const ReadText& read, const TrackedDocument& document);

/// Does both steps. Numbers may change by up to `max_change`, see compare().
KELP_QUILL_LOSSLESS_EXPORT SurgicalEdit render(const ReadText& read,
                                               const TrackedDocument& document,
                                               double max_change = 0.0);

}  // namespace kelp::input::quill::lossless

#endif  // KELP_INPUT_QUILL_LOSSLESS_SURGICAL_EDIT_HPP
