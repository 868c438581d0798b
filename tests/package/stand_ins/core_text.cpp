#include <algorithm>
#include <charconv>
#include <kelp/core/text.hpp>
#include <sstream>

namespace kelp::core::text {

namespace {

template <typename Number>
bool try_parse(std::string_view token, Number& value) {
  const char* end = token.data() + token.size();
  const auto [rest, error] = std::from_chars(token.data(), end, value);
  return error == std::errc() && rest == end;
}

template <typename Fold>
std::string folded(std::string_view text, Fold fold) {
  std::string result(text);
  std::transform(result.begin(), result.end(), result.begin(), fold);
  return result;
}

}  // namespace

std::string trim(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t\r");
  if (first == std::string_view::npos) return "";
  return std::string(text.substr(first, text.find_last_not_of(" \t\r") - first + 1));
}

std::string to_lower_copy(std::string_view text) {
  return folded(text, [](char c) { return c >= 'A' && c <= 'Z' ? char(c + 32) : c; });
}

std::string to_upper_copy(std::string_view text) {
  return folded(text, [](char c) { return c >= 'a' && c <= 'z' ? char(c - 32) : c; });
}

std::vector<std::string> split_whitespace(std::string_view text) {
  std::istringstream stream{std::string(text)};
  std::vector<std::string> words;
  for (std::string word; stream >> word;) words.push_back(word);
  return words;
}

std::vector<std::string> split_lines(std::string_view text) {
  std::istringstream stream{std::string(text)};
  std::vector<std::string> lines;
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

bool try_parse_int(std::string_view token, int& value) { return try_parse(token, value); }
bool try_parse_double(std::string_view token, double& value) { return try_parse(token, value); }

}  // namespace kelp::core::text
