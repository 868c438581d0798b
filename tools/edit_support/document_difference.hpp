#ifndef KELP_INPUT_QUILL_EDIT_SUPPORT_DOCUMENT_DIFFERENCE_HPP
#define KELP_INPUT_QUILL_EDIT_SUPPORT_DOCUMENT_DIFFERENCE_HPP

// Comparing the document that was meant with the one that a text reads back as.
//
//   const DocumentComparison comparison = compare(meant, parse_string(text).input, 1e-6);
//   for (const DocumentDifference& difference : comparison.differences)
//     std::cerr << difference.words << '\n';
//
// Every member of every part is compared, with one exception: the reader keeps the line it read in
// `raw_text` for every kind of post-processing line, so that member counts for Raw alone. Texts in
// differences hold bytes of the documents as they are, to be escaped by whoever shows them.

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "edit_support/line_account.hpp"
#include "kelp/input/quill/document.hpp"

namespace kelp::input::quill::edit_support {

/// One member that is not as meant. `role` and `index` name the part of the document it belongs to,
/// as in an account of lines; a role of Blank stands for the document as a whole (its kind of
/// geometry, the length of a list). `words` says what is there and what was meant: "charge is 1
/// instead of 0".
struct DocumentDifference {
  LineRole role = LineRole::Blank;
  std::optional<std::size_t> index = std::nullopt;
  std::string words = {};
};

/// How many coordinates and scan values are not the same number, whether that was accepted or not,
/// and the largest distance between two of them. The distance is infinite when one of the two is
/// infinite or not a number, and zero for a zero that only changed its sign.
struct NumberChanges {
  std::size_t count = 0;
  double largest = 0.0;
};

/// All that is not as meant, in the order of the lines, and the numbers that changed.
struct DocumentComparison {
  std::vector<DocumentDifference> differences = {};
  NumberChanges number_changes = {};

  /// Whether the documents are equal, changes of numbers that are small enough aside.
  bool equal() const { return differences.empty(); }
};

/// Compares `found` with `meant`. A coordinate or scan value may differ by up to `max_change`; when
/// that is 0, every bit counts, except that one NaN is as good as another of the same sign. When
/// two lists differ in length, that is one difference, and the entries that both have are compared.
DocumentComparison compare(const QuillInput& meant, const QuillInput& found,
                           double max_change = 0.0);

/// Whether two parts of documents are equal by the same rules, with no change of numbers accepted.
bool is_same(const HeaderCommand& left, const HeaderCommand& right);
bool is_same(const AtomRecord& left, const AtomRecord& right);
bool is_same(const PostCommand& left, const PostCommand& right);

}  // namespace kelp::input::quill::edit_support

#endif  // KELP_INPUT_QUILL_EDIT_SUPPORT_DOCUMENT_DIFFERENCE_HPP
