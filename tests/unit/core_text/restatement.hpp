#ifndef KELP_CORE_TEXT_TESTS_RESTATEMENT_HPP
#define KELP_CORE_TEXT_TESTS_RESTATEMENT_HPP

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The text functions said again in the slowest and plainest way, on the C library. Test programs
// run in the "C" locale, where its functions mean what the text functions promise everywhere.

namespace kelp::core::text::restated {

std::string trim(std::string_view text);
std::string to_lower_copy(std::string_view text);
std::string to_upper_copy(std::string_view text);
std::vector<std::string> split_whitespace(std::string_view text);
std::vector<std::string> split_lines(std::string_view text);
std::optional<int> parse_int(std::string_view token);
std::optional<double> parse_double(std::string_view token);

}  // namespace kelp::core::text::restated

#endif  // KELP_CORE_TEXT_TESTS_RESTATEMENT_HPP
