// Every header line of up to five characters after its "#" that has any meaning.

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <string_view>

#include "properties/holds.hpp"
#include "properties/line_readers.hpp"

namespace kelp::input::quill {
namespace {

constexpr std::string_view alphabet = "#a=(),'\" ";

std::size_t count_of_length(std::size_t length) {
  std::size_t count = 1;
  for (; length > 0; --length) count *= alphabet.size();
  return count;
}

/// Text number `index` of those of a length.
std::string text_number(std::size_t index, std::size_t length) {
  std::string text;
  for (; length > 0; --length) {
    text += alphabet[index % alphabet.size()];
    index /= alphabet.size();
  }
  return text;
}

class EveryHeaderLine : public testing::TestWithParam<std::size_t> {};

TEST_P(EveryHeaderLine, IsReadAsTheObviousReaderReadsIt) {
  const std::size_t length = GetParam();
  for (std::size_t i = 0; i < count_of_length(length); ++i)
    ASSERT_TRUE(holds([&] { check_line_readers("#" + text_number(i, length)); }));
}

INSTANTIATE_TEST_SUITE_P(OfLength, EveryHeaderLine, testing::Range<std::size_t>(0, 6),
                         testing::PrintToStringParamName());

}  // namespace
}  // namespace kelp::input::quill
