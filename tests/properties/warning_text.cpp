#include "properties/warning_text.hpp"

#include <algorithm>
#include <cstddef>

#include "properties/obvious_text.hpp"

namespace kelp::input::quill {

SplitWarning split_warning(const std::string& warning) {
  const std::string prefix = "Line ";
  const std::size_t colon = warning.find(": ");
  if (warning.compare(0, prefix.size(), prefix) != 0 || colon == std::string::npos)
    return {false, 0, warning};
  const std::string number = warning.substr(prefix.size(), colon - prefix.size());
  // Nineteen digits fit; no text has lines enough for more.
  const bool is_number = !number.empty() && number.size() < 20 && number[0] != '0' &&
                         std::all_of(number.begin(), number.end(), obvious::is_digit);
  if (!is_number) return {false, 0, warning};
  return {true, std::stoull(number), warning.substr(colon + 2)};
}

}  // namespace kelp::input::quill
