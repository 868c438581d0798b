#ifndef KELP_INPUT_QUILL_LOSSLESS_EQUALITY_HPP
#define KELP_INPUT_QUILL_LOSSLESS_EQUALITY_HPP

#include "kelp/input/quill/document.hpp"
#include "kelp/input/quill/lossless/export.hpp"

// Two parts of documents are equal when all their members are, with one exception: the reader keeps
// the line that it read in `raw_text` for every kind of post-processing line, so that member counts
// for raw text only.

namespace kelp::input::quill::lossless {

KELP_QUILL_LOSSLESS_EXPORT bool is_equal(const HeaderCommand& left, const HeaderCommand& right);
KELP_QUILL_LOSSLESS_EXPORT bool is_equal(const AtomRecord& left, const AtomRecord& right);
KELP_QUILL_LOSSLESS_EXPORT bool is_equal(const PostCommand& left, const PostCommand& right);

/// Returns whether two numbers are the same in every bit. The payload of a NaN does not count,
/// since no text can hold it.
KELP_QUILL_LOSSLESS_EXPORT bool is_equal_number(double left, double right);

/// Returns how far apart two numbers are that are not equal: infinitely when one of them is
/// infinite or not a number.
KELP_QUILL_LOSSLESS_EXPORT double distance(double left, double right);

}  // namespace kelp::input::quill::lossless

#endif  // KELP_INPUT_QUILL_LOSSLESS_EQUALITY_HPP
