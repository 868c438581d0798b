#ifndef KELP_INPUT_QUILL_TESTS_UNIT_WRITER_NUMBER_SAMPLES_HPP
#define KELP_INPUT_QUILL_TESTS_UNIT_WRITER_NUMBER_SAMPLES_HPP

#include <vector>

// Numbers that are hard to write, and many others. All are the same in every run.

namespace kelp::input::quill {

/// Zeros, denormals, the largest doubles, infinities and NaNs, of both signs.
std::vector<double> special_numbers();

/// Every power of two and of ten that a double can hold, with its neighbours, of both signs.
std::vector<double> powers_and_neighbours();

/// Doubles of every exponent, NaNs included, with every bit pattern equally likely.
std::vector<double> random_bit_patterns();

/// Numbers between -1000 and 1000, as coordinates are.
std::vector<double> uniform_numbers();

/// Numbers of up to twelve digits with up to nine decimals.
std::vector<double> short_decimals();

/// Random digits with every exponent from 2^-80 to 2^70, which includes all numbers that are
/// converted in integers and both borders of their range.
std::vector<double> every_small_exponent();

/// Numbers that are exactly half-way between two millionths.
std::vector<double> exact_ties();

/// The doubles closest to a half-way point between two millionths, with their neighbours.
std::vector<double> near_ties();

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_TESTS_UNIT_WRITER_NUMBER_SAMPLES_HPP
