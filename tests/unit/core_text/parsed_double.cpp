#include "parsed_double.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>

#include "kelp/core/text.hpp"
#include "text_samples.hpp"

namespace kelp::core::text {

namespace {

std::uint64_t bits_of(double value) {
  std::uint64_t bits = 0;
  std::memcpy(&bits, &value, sizeof bits);
  return bits;
}

bool are_same(double a, double b) {
  if (std::isnan(a) && std::isnan(b)) return std::signbit(a) == std::signbit(b);
  return bits_of(a) == bits_of(b);
}

}  // namespace

bool operator==(const ParsedDouble& a, const ParsedDouble& b) {
  if (!a.value_ || !b.value_) return a.value_.has_value() == b.value_.has_value();
  return are_same(*a.value_, *b.value_);
}

void PrintTo(const ParsedDouble& parsed, std::ostream* out) {
  if (!parsed.value_) {
    *out << "no number";
  } else {
    const auto precision = out->precision(17);
    *out << *parsed.value_ << " (bits " << std::hex << bits_of(*parsed.value_) << std::dec << ')';
    out->precision(precision);
  }
}

ParsedDouble parsed(std::string_view token) {
  constexpr double untouched = -987654.25;
  const ExactBlock block(token);
  double value = untouched;
  if (try_parse_double(block.view(), value)) return ParsedDouble(value);
  EXPECT_TRUE(are_same(value, untouched)) << testing::PrintToString(token) << " changed the value";
  return ParsedDouble(std::nullopt);
}

}  // namespace kelp::core::text
