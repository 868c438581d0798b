#ifndef KELP_CORE_TEXT_TESTS_PARSED_DOUBLE_HPP
#define KELP_CORE_TEXT_TESTS_PARSED_DOUBLE_HPP

#include <optional>
#include <ostream>
#include <string_view>

namespace kelp::core::text {

/// The actual or expected result of parsing a token: one exact double, or no number. Two results
/// are equal when the doubles are equal bit by bit, except that all NaNs of one sign are equal.
class ParsedDouble {
 public:
  explicit ParsedDouble(std::optional<double> value) : value_(value) {}

  friend bool operator==(const ParsedDouble& a, const ParsedDouble& b);
  friend void PrintTo(const ParsedDouble& parsed, std::ostream* out);

 private:
  std::optional<double> value_;
};

inline ParsedDouble same_bits(double value) { return ParsedDouble(value); }

inline const ParsedDouble no_number{std::nullopt};

/// What try_parse_double reads from the token, in its own block of memory. The test fails if it
/// returns false and has changed the value.
ParsedDouble parsed(std::string_view token);

}  // namespace kelp::core::text

#endif  // KELP_CORE_TEXT_TESTS_PARSED_DOUBLE_HPP
