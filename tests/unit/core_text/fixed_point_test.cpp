#include "fixed_point.hpp"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdlib>
#include <optional>
#include <string>

// Which texts the fast way to read a coordinate accepts, and which it leaves to the general way.

namespace kelp::core::text {
namespace {

constexpr std::size_t shortest = 8;
constexpr std::size_t longest = 16;
constexpr std::size_t last_place_of_point = 7;

std::string digits_with_point(std::size_t size, std::size_t point) {
  std::string text;
  while (text.size() < size) text += "9876543210"[text.size() % 10];
  text[point] = '.';
  return text;
}

bool is_taken(std::size_t size, std::size_t point) {
  return size >= shortest && size <= longest && point <= last_place_of_point && point + 1 < size;
}

/// The bytes after the text in memory are digits, which do not belong to it.
std::optional<double> read_within_digits(const std::string& text) {
  const std::string memory = "12345678" + text + "12345678";
  return parse_fixed_point(std::string_view(memory).substr(8, text.size()));
}

TEST(FixedPoint, TakesEightToSixteenBytesWithThePointAmongTheFirstEightAndNotAtTheEnd) {
  for (std::size_t size = 2; size <= 20; ++size) {
    for (std::size_t point = 0; point < size; ++point) {
      const std::string text = digits_with_point(size, point);
      const std::optional<double> nothing;
      EXPECT_EQ(read_within_digits(text),
                is_taken(size, point) ? std::strtod(text.c_str(), nullptr) : nothing)
          << text;
    }
  }
}

TEST(FixedPoint, DoesNotReadTextsWithoutAPoint) {
  for (std::size_t size = shortest; size <= longest; ++size) {
    EXPECT_EQ(read_within_digits(std::string(size, '7')), std::nullopt) << size;
  }
}

TEST(FixedPoint, DoesNotReadTextsWithOtherCharactersThanDigitsAndAPoint) {
  for (std::size_t size = shortest; size <= longest; ++size) {
    for (std::size_t point = 0; point <= last_place_of_point; ++point) {
      for (std::size_t place = 0; place < size; ++place) {
        if (place == point) continue;
        for (const char other : {'.', '/', ':', '-', 'e', ' ', '\0', '\x80', '\xB5', '\xFF'}) {
          std::string text = digits_with_point(size, point);
          text[place] = other;
          EXPECT_EQ(read_within_digits(text), std::nullopt) << text;
        }
      }
    }
  }
}

}  // namespace
}  // namespace kelp::core::text
