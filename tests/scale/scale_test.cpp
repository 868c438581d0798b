// Twice the text takes about twice the time and the memory, in whatever way it is large.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <limits>
#include <string>

#include "scale/expect_linear.hpp"
#include "scale/shapes.hpp"

namespace kelp::input::quill {
namespace {

class Reading : public testing::TestWithParam<Shape> {};

TEST_P(Reading, IsLinear) {
  const Shape& shape = GetParam();
  expect_linear(shape.test_size, [&shape](std::size_t size) {
    return [&shape, size, text = shape.text(size)] {
      EXPECT_TRUE(shape.is_read(parse_string(text), size));
    };
  });
}

INSTANTIATE_TEST_SUITE_P(OfShape, Reading, testing::ValuesIn(shapes()),
                         [](const auto& shape) { return std::string(shape.param.name); });

}  // namespace
}  // namespace kelp::input::quill
