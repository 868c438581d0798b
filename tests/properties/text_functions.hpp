#ifndef KELP_INPUT_QUILL_TESTS_PROPERTIES_TEXT_FUNCTIONS_HPP
#define KELP_INPUT_QUILL_TESTS_PROPERTIES_TEXT_FUNCTIONS_HPP

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "kelp/chem/elements.hpp"
#include "kelp/core/text.hpp"

namespace kelp::input::quill {

/// The functions that are checked: the library's, unless a test puts a wrong one in their place.
struct TextFunctions {
  std::string (*trim)(std::string_view) = core::text::trim;
  std::string (*to_lower_copy)(std::string_view) = core::text::to_lower_copy;
  std::string (*to_upper_copy)(std::string_view) = core::text::to_upper_copy;
  std::vector<std::string> (*split_whitespace)(std::string_view) = core::text::split_whitespace;
  std::vector<std::string> (*split_lines)(std::string_view) = core::text::split_lines;
  bool (*try_parse_int)(std::string_view, int&) = core::text::try_parse_int;
  bool (*try_parse_double)(std::string_view, double&) = core::text::try_parse_double;
  std::string (*normalize_symbol)(std::string_view) = chem::elements::normalize_symbol;
  std::optional<int> (*atomic_number_from_symbol)(std::string_view) =
      chem::elements::atomic_number_from_symbol;
};

/// Each text and element function gives what the obvious one gives, the doubles to the bit, and a
/// number that is refused leaves its variable alone. The functions see a copy of `bytes` in a heap
/// block of exactly that size, so that the address sanitizer sees a byte too many. Throws a
/// Violation.
void check_text_functions(std::string_view bytes, const TextFunctions& functions = {});

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_TESTS_PROPERTIES_TEXT_FUNCTIONS_HPP
