#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kelp::core::text {

std::string trim(std::string_view text);
std::string to_lower_copy(std::string_view text);
std::string to_upper_copy(std::string_view text);
std::vector<std::string> split_whitespace(std::string_view text);
std::vector<std::string> split_lines(std::string_view text);
bool try_parse_int(std::string_view token, int& value);
bool try_parse_double(std::string_view token, double& value);

}  // namespace kelp::core::text
