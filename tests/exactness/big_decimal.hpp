#ifndef KELP_INPUT_QUILL_TESTS_EXACTNESS_BIG_DECIMAL_HPP
#define KELP_INPUT_QUILL_TESTS_EXACTNESS_BIG_DECIMAL_HPP

#include <cstdint>
#include <string>
#include <vector>

namespace kelp::input::quill::exactness {

/// An integer times a power of two, exactly, as decimal digits and a power of ten.
class BigDecimal {
 public:
  BigDecimal(std::uint64_t integer, int power_of_two);

  /// Adds `count` tenths of a unit of the last digit; adds one digit to the number. `count` is -1,
  /// 0 or 1.
  void move_by_tenth(int count);

  std::string digits() const;
  int exponent() const { return exponent_; }

 private:
  void multiply(std::uint32_t factor);

  std::vector<std::uint32_t> limbs_;  // of nine digits each, the last ones first
  int exponent_ = 0;
};

}  // namespace kelp::input::quill::exactness

#endif  // KELP_INPUT_QUILL_TESTS_EXACTNESS_BIG_DECIMAL_HPP
