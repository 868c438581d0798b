#include <algorithm>
#include <array>
#include <cfloat>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <system_error>

#include "decimal.hpp"

namespace kelp::core::text {

namespace {

constexpr std::array<double, 23> powers_of_ten = {
    1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
    1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

/// For a number of at most 19 digits, these at most 2^53 as an integer, times a power of ten from
/// -22 to 22. Nothing for any other number.
std::optional<double> by_one_operation(const Decimal& decimal) {
  // Nineteen digits do not overflow 64 bits. Integers up to 2^53 are doubles, and so are the powers
  // of ten up to 10^22, because 5^22 < 2^53. One multiplication or division of two doubles gives
  // the double nearest to the exact result.
  constexpr std::int64_t largest_power = powers_of_ten.size() - 1;
  const std::int64_t power = decimal.exponent - static_cast<std::int64_t>(decimal.fraction.size());
  if (!arithmetic_rounds_once || decimal.whole.size() + decimal.fraction.size() > 19 ||
      decimal.digits > std::uint64_t{1} << 53 || power < -largest_power || power > largest_power) {
    return std::nullopt;
  }
  const auto digits = static_cast<double>(static_cast<std::int64_t>(decimal.digits));
  return power < 0 ? digits / powers_of_ten[static_cast<std::size_t>(-power)]
                   : digits * powers_of_ten[static_cast<std::size_t>(power)];
}

/// A number written for from_chars: ".", the significant digits, "e" and an exponent.
class CanonicalText {
 public:
  CanonicalText() { text_[0] = '.'; }

  void append(std::string_view digits) {
    const std::string_view kept = digits.substr(0, most_digits + 1 - size_);
    std::copy(kept.begin(), kept.end(), text_.data() + size_);
    size_ += kept.size();
    if (digits.find_first_not_of('0', kept.size()) != digits.npos) lost_digits_ = true;
  }

  /// The double nearest to the number with this exponent, or nothing when from_chars finds it out
  /// of range, which it may be at either end.
  std::optional<double> nearest_double(std::int64_t exponent) {
    if (lost_digits_) text_[size_++] = '1';
    text_[size_++] = 'e';
    char* const last = text_.data() + text_.size();
    const char* const end = std::to_chars(text_.data() + size_, last, exponent).ptr;
    double value = 0.0;
    const auto result = std::from_chars(text_.data(), end, value);
    if (result.ec == std::errc::result_out_of_range) return std::nullopt;
    return value;
  }

 private:
  // A number halfway between two doubles has at most 768 significant digits, because it is at worst
  // an integer below 2^54 times 2^-1075. All numbers that begin with the same 768 digits therefore
  // lie on one side of it, except for one that ends there. A single "1" says that there is more.
  static constexpr std::size_t most_digits = 768;

  std::array<char, most_digits + 8> text_;
  std::size_t size_ = 1;
  bool lost_digits_ = false;
};

std::string_view without_leading_zeros(std::string_view digits) {
  digits.remove_prefix(std::min(digits.find_first_not_of('0'), digits.size()));
  return digits;
}

/// The power of ten of the digit in front of `fraction`, counted from the first digit in `whole`.
/// For any number. 
std::optional<double> by_from_chars(const Decimal& decimal) {
  const std::string_view whole = without_leading_zeros(decimal.whole);
  const std::string_view fraction =
      whole.empty() ? without_leading_zeros(decimal.fraction) : decimal.fraction;
  if (whole.empty() && fraction.empty()) return 0.0;
  // The number is at least 10^(exponent - 1) and less than 10^exponent.
  const std::int64_t exponent =
      decimal.exponent + (whole.empty() ? static_cast<std::int64_t>(fraction.size()) -
                                              static_cast<std::int64_t>(decimal.fraction.size())
                                        : static_cast<std::int64_t>(whole.size()));
  if (exponent > DBL_MAX_10_EXP + 1) return std::nullopt;
  // The smallest double is 4.9e-324, and what is less than half of it is nearer to zero.
  if (exponent < -323) return 0.0;
  CanonicalText text;
  text.append(whole);
  text.append(fraction);
  const std::optional<double> value = text.nearest_double(exponent);
  if (!value && exponent < 0) return 0.0;
  return value;
}

}  // namespace

std::optional<double> nearest_double(const Decimal& decimal) {
  const std::optional<double> value = by_one_operation(decimal);
  return value ? value : by_from_chars(decimal);
}

}  // namespace kelp::core::text
