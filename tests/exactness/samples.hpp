#ifndef KELP_INPUT_QUILL_TESTS_EXACTNESS_SAMPLES_HPP
#define KELP_INPUT_QUILL_TESTS_EXACTNESS_SAMPLES_HPP

#include <random>
#include <string>

// Functions that make numbers which are hard to read or write, and many others. The numbers depend
// only on the state of the generator: std::mt19937_64 gives the same everywhere, and nothing else
// is random.

namespace kelp::input::quill::exactness {

using Random = std::mt19937_64;

/// Numbers to write.
namespace values {

/// All bit patterns are equally likely: all exponents, NaNs and infinities.
double random_bits(Random& random);

/// Up to twelve digits with up to nine decimals, as people and programs write them.
double short_decimal(Random& random);

/// Exactly half-way between two texts of six decimals or six digits, or as near to it as a double
/// can be on either side.
double halfway(Random& random);

/// A power of ten or of two, or a number up to two steps from it.
double power(Random& random);

/// Up to three steps from a number where the conversion path, the width or the notation changes.
double border(Random& random);

}  // namespace values

/// Numbers to read.
namespace tokens {

/// A random bit pattern in up to 17 digits, or the same without its exponent.
std::string random_bits(Random& random);

/// Up to nineteen digits with a point in any place, or without one.
std::string short_decimal(Random& random);

/// Exactly half-way between two doubles, with all digits, or one unit of a further digit from it.
std::string halfway(Random& random);

/// A power of ten in one of many spellings, or 99...9 or 100...1.
std::string power(Random& random);

/// Mantissas about 2^53, 2^63, 2^64 and powers of ten, exponents about 22, lengths about a word.
std::string border(Random& random);

}  // namespace tokens

}  // namespace kelp::input::quill::exactness

#endif  // KELP_INPUT_QUILL_TESTS_EXACTNESS_SAMPLES_HPP
