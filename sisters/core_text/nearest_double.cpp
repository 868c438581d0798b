#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <limits>

#include "decimal.hpp"
#include "floating_point.hpp"

namespace kelp::core::text {

namespace {

/// A number written for parse_floating_point: a point, the significant digits and an exponent. Its
/// size does not depend on the length of the number.
class CanonicalText {
 public:
  void append(std::string_view digits) {
    const std::string_view kept = digits.substr(0, most_digits - count_);
    std::copy(kept.begin(), kept.end(), digits_end());
    count_ += kept.size();
    if (digits.find_first_not_of('0', kept.size()) != std::string_view::npos) has_more_ = true;
  }

  /// The double nearest to the number with this exponent. Nothing when the number is too large for
  /// a finite double; zero or nothing when it is too small for any other double.
  std::optional<double> read_with_exponent(std::int64_t exponent) {
    char* end = digits_end();
    if (has_more_) *end++ = '1';
    *end++ = 'e';
    end = std::to_chars(end, text_.data() + text_.size(), exponent).ptr;
    return parse_floating_point({text_.data(), static_cast<std::size_t>(end - text_.data())});
  }

 private:
  // The number halfway between two doubles has at most 768 significant digits: at worst it is an
  // integer below 2^54 times 2^-1075. Therefore all numbers that begin with the same 768 digits are
  // on one side of it, except the one that ends there. A final "1" represents all further digits.
  static constexpr std::size_t most_digits = 768;
  static constexpr std::size_t most_after_digits = std::string_view("1e-323").size();

  char* digits_end() { return text_.data() + 1 + count_; }

  std::array<char, 1 + most_digits + most_after_digits> text_{'.'};
  std::size_t count_ = 0;
  bool has_more_ = false;
};

std::string_view without_leading_zeros(std::string_view digits) {
  digits.remove_prefix(std::min(digits.find_first_not_of('0'), digits.size()));
  return digits;
}

std::int64_t signed_size(std::string_view text) { return static_cast<std::int64_t>(text.size()); }

}  // namespace

std::optional<double> nearest_double(const Decimal& decimal) {
  using Limits = std::numeric_limits<double>;
  const std::string_view whole = without_leading_zeros(decimal.whole);
  const std::string_view fraction =
      whole.empty() ? without_leading_zeros(decimal.fraction) : decimal.fraction;
  if (whole.empty() && fraction.empty()) return 0.0;

  // The number is 0.d... times ten to the power of this, d being its first digit that is not 0.
  const std::int64_t exponent =
      decimal.exponent +
      (whole.empty() ? signed_size(fraction) - signed_size(decimal.fraction) : signed_size(whole));
  if (exponent > Limits::max_exponent10 + 1) return std::nullopt;
  // Below 10^-324 a number is nearer to zero than to the smallest double, which is 4.9e-324.
  if (exponent < -323) return 0.0;

  CanonicalText text;
  text.append(whole);
  text.append(fraction);
  const std::optional<double> value = text.read_with_exponent(exponent);
  if (!value && exponent < 0) return 0.0;
  return value;
}

}  // namespace kelp::core::text
