#include <charconv>
#include <system_error>

#include "ascii.hpp"
#include "kelp/core/text.hpp"

namespace kelp::core::text {

bool try_parse_int(std::string_view token, int& value) {
  const char* first = token.data();
  const char* const last = first + token.size();
  // from_chars accepts a "-" but not a "+"; no other sign may follow the "+".
  if (first != last && *first == '+') {
    ++first;
    if (first == last || !is_digit(*first)) return false;
  }
  int number = 0;
  const auto [end, error] = std::from_chars(first, last, number);
  if (error != std::errc() || end != last) return false;
  value = number;
  return true;
}

}  // namespace kelp::core::text
