#ifndef KELP_INPUT_QUILL_LOSSLESS_EQUALITY_HPP
#define KELP_INPUT_QUILL_LOSSLESS_EQUALITY_HPP

/// @file
/// Whether two parts of documents are equal: whether all their members are. There are two
/// exceptions. The reader keeps the line that it read in `raw_text` for every kind of
/// post-processing line, so that member counts for raw text only. And two NaNs of the same sign are
/// equal. All other numbers are equal when every bit is, so that 0 and -0 differ.
///
///     is_equal(AtomRecord{"He", 0.0, 0.0, 0.5}, AtomRecord{"He", 0.0, 0.0, 0.5});   // true
///     is_equal(AtomRecord{"He", 0.0, 0.0, 0.0}, AtomRecord{"He", 0.0, 0.0, -0.0});  // false

#include "kelp/input/quill/document.hpp"
#include "kelp/input/quill/lossless/export.hpp"

namespace kelp::input::quill::lossless {

/// Compares two commands with their parameters.
KELP_QUILL_LOSSLESS_EXPORT bool is_equal(const HeaderCommand& left, const HeaderCommand& right);

/// Compares two atoms.
KELP_QUILL_LOSSLESS_EXPORT bool is_equal(const AtomRecord& left, const AtomRecord& right);

/// Compares two post-processing lines.
KELP_QUILL_LOSSLESS_EXPORT bool is_equal(const PostCommand& left, const PostCommand& right);

}  // namespace kelp::input::quill::lossless

#endif  // KELP_INPUT_QUILL_LOSSLESS_EQUALITY_HPP
