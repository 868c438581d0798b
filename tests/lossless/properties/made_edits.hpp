#ifndef KELP_INPUT_QUILL_TESTS_LOSSLESS_PROPERTIES_MADE_EDITS_HPP
#define KELP_INPUT_QUILL_TESTS_LOSSLESS_PROPERTIES_MADE_EDITS_HPP

#include <vector>

#include "lossless/properties/edits.hpp"
#include "properties/byte_source.hpp"

namespace kelp::input::quill {

/// Replaces every NaN by that of its sign which the reader gives: no text keeps more of it.
void keep_signs_of_nan_alone(QuillInput& document);

namespace lossless {

/// One to four edits, of any kind and with any arguments.
std::vector<Edit> made_edits(ByteSource& source);

}  // namespace lossless

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_TESTS_LOSSLESS_PROPERTIES_MADE_EDITS_HPP
