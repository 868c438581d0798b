#ifndef KELP_CORE_TEXT_TESTS_PARSED_DOUBLE_HPP
#define KELP_CORE_TEXT_TESTS_PARSED_DOUBLE_HPP

#include <optional>
#include <ostream>
#include <string_view>

namespace kelp::core::text {

/// What parsing a token gave, or should give: one exact double, or no number. Two of them are equal
/// when the doubles are so bit by bit, except that every NaN of one sign is the same.
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

/// What try_parse_double makes of the token, in a block of memory of its own. Fails the test when
/// it returns false and has changed the value.
ParsedDouble parsed(std::string_view token);

}  // namespace kelp::core::text

#endif  // KELP_CORE_TEXT_TESTS_PARSED_DOUBLE_HPP
