#include "reference/bare_reading.hpp"

#include "kelp/chem/elements.hpp"
#include "kelp/core/text.hpp"
#include "reference/bare_loops.hpp"
#include "reference/plain_functions.hpp"

namespace kelp::input::quill::bench {

namespace {

struct PlainFunctions {
  static constexpr auto trim = plain::trim;
  static constexpr auto to_lower_copy = plain::to_lower_copy;
  static constexpr auto to_upper_copy = plain::to_upper_copy;
  static constexpr auto split_whitespace = plain::split_whitespace;
  static constexpr auto split_lines = plain::split_lines;
  static constexpr auto try_parse_int = plain::try_parse_int;
  static constexpr auto try_parse_double = plain::try_parse_double;
  static constexpr auto normalize_symbol = plain::normalize_symbol;
  static constexpr auto atomic_number_from_symbol = plain::atomic_number_from_symbol;
};

struct OwnFunctions {
  static constexpr auto trim = core::text::trim;
  static constexpr auto to_lower_copy = core::text::to_lower_copy;
  static constexpr auto to_upper_copy = core::text::to_upper_copy;
  static constexpr auto split_whitespace = core::text::split_whitespace;
  static constexpr auto split_lines = core::text::split_lines;
  static constexpr auto try_parse_int = core::text::try_parse_int;
  static constexpr auto try_parse_double = core::text::try_parse_double;
  static constexpr auto normalize_symbol = chem::elements::normalize_symbol;
  static constexpr auto atomic_number_from_symbol = chem::elements::atomic_number_from_symbol;
};

}  // namespace

ParseResult read_with_plain_functions(std::string_view text) {
  return BareReading<PlainFunctions>(text).read();
}

ParseResult read_with_own_functions(std::string_view text) {
  return BareReading<OwnFunctions>(text).read();
}

}  // namespace kelp::input::quill::bench
