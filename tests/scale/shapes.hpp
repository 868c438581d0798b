#ifndef KELP_INPUT_QUILL_TESTS_SCALE_SHAPES_HPP
#define KELP_INPUT_QUILL_TESTS_SCALE_SHAPES_HPP

#include <cstddef>
#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

#include "kelp/input/quill/quill.hpp"

namespace kelp::input::quill {

/// A way in which a text may be large.
struct Shape {
  std::string_view name;
  /// How often the piece is repeated: in a test, where a quadratic cost would be larger than all
  /// other costs, and for the largest text.
  std::size_t test_size;
  std::size_t full_size;
  std::string (*text)(std::size_t size);
  /// Whether the document has the expected size, so that only successful reading is measured.
  bool (*is_read)(const ParseResult& result, std::size_t size);
};

void PrintTo(const Shape& shape, std::ostream* out);

const std::vector<Shape>& shapes();

/// `piece` repeated `count` times.
std::string repeated(std::string_view piece, std::size_t count);

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_TESTS_SCALE_SHAPES_HPP
