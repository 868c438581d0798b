#include "exactness/big_decimal.hpp"

#include <algorithm>
#include <cstddef>

namespace kelp::input::quill::exactness {

namespace {

constexpr std::uint32_t limb_size = 1'000'000'000;
constexpr std::size_t limb_digits = 9;

// The number is multiplied by powers in steps that are small enough for a limb.
constexpr int twos_at_once = 29;
constexpr std::uint32_t power_of_twos = 1U << twos_at_once;
constexpr int fives_at_once = 12;
constexpr std::uint32_t power_of_fives = 244'140'625;

}  // namespace

BigDecimal::BigDecimal(std::uint64_t integer, int power_of_two) {
  for (; integer != 0; integer /= limb_size)
    limbs_.push_back(static_cast<std::uint32_t>(integer % limb_size));
  int twos = std::max(power_of_two, 0);
  int fives = std::max(-power_of_two, 0);  // 2^-n is 5^n * 10^-n
  exponent_ = -fives;
  for (; twos >= twos_at_once; twos -= twos_at_once) multiply(power_of_twos);
  for (; twos > 0; --twos) multiply(2);
  for (; fives >= fives_at_once; fives -= fives_at_once) multiply(power_of_fives);
  for (; fives > 0; --fives) multiply(5);
}

void BigDecimal::multiply(std::uint32_t factor) {
  std::uint64_t carry = 0;
  for (std::uint32_t& limb : limbs_) {
    carry += std::uint64_t{limb} * factor;
    limb = static_cast<std::uint32_t>(carry % limb_size);
    carry /= limb_size;
  }
  if (carry != 0) limbs_.push_back(static_cast<std::uint32_t>(carry));
}

void BigDecimal::move_by_tenth(int count) {
  multiply(10);
  --exponent_;
  if (count > 0) ++limbs_.front();  // the last digit is 0 now, so nothing carries
  if (count >= 0) return;
  std::size_t i = 0;
  for (; limbs_[i] == 0; ++i) limbs_[i] = limb_size - 1;
  --limbs_[i];
}

std::string BigDecimal::digits() const {
  std::string digits;
  for (auto limb = limbs_.rbegin(); limb != limbs_.rend(); ++limb) {
    const std::string text = std::to_string(*limb);
    digits += std::string(limb_digits - text.size(), '0') + text;
  }
  return digits.erase(0, digits.find_first_not_of('0'));
}

}  // namespace kelp::input::quill::exactness
