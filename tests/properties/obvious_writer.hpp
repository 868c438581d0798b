#ifndef KELP_INPUT_QUILL_TESTS_PROPERTIES_OBVIOUS_WRITER_HPP
#define KELP_INPUT_QUILL_TESTS_PROPERTIES_OBVIOUS_WRITER_HPP

#include <string>

#include "kelp/input/quill/quill.hpp"

// The writer once more, with numbers printed by the C library, in the "C" locale only.

namespace kelp::input::quill::obvious {

/// What printf("%.6f") and printf("%g") print.
std::string six_decimals(double value);
std::string six_digits(double value);

std::string written(const HeaderCommand& command);
std::string written(const GeometryBlock& geometry);
std::string written(const PostCommand& command);
std::string written(const QuillInput& document);

}  // namespace kelp::input::quill::obvious

#endif  // KELP_INPUT_QUILL_TESTS_PROPERTIES_OBVIOUS_WRITER_HPP
