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
  /// How often the piece is repeated: for a test, where what grows with the square of it outweighs
  /// everything else, and where it is to be as large as it gets.
  std::size_t test_size;
  std::size_t full_size;
  std::string (*text)(std::size_t size);
  /// Whether what was read is as large, so that nothing is measured but what was asked for.
  bool (*is_read)(const ParseResult& result, std::size_t size);
};

void PrintTo(const Shape& shape, std::ostream* out);

const std::vector<Shape>& shapes();

/// `piece` as often as said.
std::string repeated(std::string_view piece, std::size_t count);

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_TESTS_SCALE_SHAPES_HPP
