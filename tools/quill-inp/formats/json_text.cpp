#include "quill-inp/formats/json_text.hpp"

#include <cmath>
#include <cstddef>
#include <limits>

#include "quill-inp/text/hexadecimal.hpp"

namespace kelp::input::quill::tool {

namespace {

struct SpecialNumber {
  std::string_view name;
  double value;
};

constexpr SpecialNumber special_numbers[] = {
    {"inf", std::numeric_limits<double>::infinity()},
    {"-inf", -std::numeric_limits<double>::infinity()},
    {"nan", std::numeric_limits<double>::quiet_NaN()},
    {"-nan", -std::numeric_limits<double>::quiet_NaN()},
};

bool is_same_special(double left, double right) {
  return std::isnan(left) == std::isnan(right) && std::isinf(left) == std::isinf(right) &&
         std::signbit(left) == std::signbit(right);
}

}  // namespace

std::optional<std::string> bytes_from_hexadecimal(std::string_view digits) {
  if (digits.size() % 2 != 0) return std::nullopt;
  std::string bytes;
  bytes.reserve(digits.size() / 2);
  for (std::size_t i = 0; i < digits.size(); i += 2) {
    const std::size_t high = hexadecimal_digits.find(digits[i]);
    const std::size_t low = hexadecimal_digits.find(digits[i + 1]);
    if (high == std::string_view::npos || low == std::string_view::npos) return std::nullopt;
    bytes += static_cast<char>(static_cast<unsigned char>(high * 16 + low));
  }
  return bytes;
}

std::string_view special_name(double number) {
  for (const SpecialNumber& special : special_numbers) {
    if (is_same_special(special.value, number)) return special.name;
  }
  return {};  // not reached: the table has every kind of number that is not finite
}

std::optional<double> find_special_number(std::string_view name) {
  for (const SpecialNumber& special : special_numbers) {
    if (special.name == name) return special.value;
  }
  return std::nullopt;
}

}  // namespace kelp::input::quill::tool
