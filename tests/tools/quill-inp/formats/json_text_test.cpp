#include "quill-inp/formats/json_text.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace kelp::input::quill::tool {
namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

TEST(JsonText, NamesNumbersThatAreNotFinite) {
  EXPECT_EQ(special_name(infinity), "inf");
  EXPECT_EQ(special_name(-infinity), "-inf");
  EXPECT_EQ(special_name(nan), "nan");
  EXPECT_EQ(special_name(-nan), "-nan");
}

TEST(JsonText, FindsTheNumberOfEveryNameAndOfNoOther) {
  for (const double number : {infinity, -infinity, nan, -nan})
    EXPECT_EQ(special_name(find_special_number(special_name(number)).value()),
              special_name(number));
  for (const char* name : {"", "Inf", "infinity", "+inf", "nan ", "1"})
    EXPECT_FALSE(find_special_number(name)) << name;
}

TEST(JsonText, ReadsPairsOfHexadecimalDigitsInLowerCase) {
  EXPECT_EQ(bytes_from_hexadecimal(""), "");
  EXPECT_EQ(bytes_from_hexadecimal("00ff6b"), std::string("\0\xFFk", 3));
  for (const char* text : {"0", "00f", "0F", "g0", "0g", " 00", "0x"})
    EXPECT_FALSE(bytes_from_hexadecimal(text)) << text;
}

}  // namespace
}  // namespace kelp::input::quill::tool
