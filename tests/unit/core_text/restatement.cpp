#include "restatement.hpp"

#include <cctype>
#include <cerrno>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace kelp::core::text::restated {

namespace {

bool is_space(char c) { return std::isspace(static_cast<unsigned char>(c)) != 0; }

bool is_digit(char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; }

}  // namespace

std::string trim(std::string_view text) {
  std::string rest(text);
  while (!rest.empty() && is_space(rest.front())) rest.erase(rest.begin());
  while (!rest.empty() && is_space(rest.back())) rest.pop_back();
  return rest;
}

std::string to_lower_copy(std::string_view text) {
  std::string lower;
  for (const char c : text) {
    lower += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  }
  return lower;
}

std::string to_upper_copy(std::string_view text) {
  std::string upper;
  for (const char c : text) {
    upper += static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  }
  return upper;
}

std::vector<std::string> split_whitespace(std::string_view text) {
  std::vector<std::string> words;
  std::string word;
  for (const char c : std::string(text) + ' ') {
    if (!is_space(c)) {
      word += c;
    } else if (!word.empty()) {
      words.push_back(word);
      word.clear();
    }
  }
  return words;
}

std::vector<std::string> split_lines(std::string_view text) {
  std::vector<std::string> lines;
  std::string line;
  for (const char c : text) {
    if (c != '\n') {
      line += c;
      continue;
    }
    if (!line.empty() && line.back() == '\r') line.pop_back();
    lines.push_back(line);
    line.clear();
  }
  if (!line.empty()) lines.push_back(line);
  return lines;
}

std::optional<int> parse_int(std::string_view token) {
  const std::string text(token);
  const bool is_signed = !text.empty() && (text[0] == '+' || text[0] == '-');
  const std::string digits = text.substr(is_signed ? 1 : 0);
  if (digits.empty()) return std::nullopt;
  for (const char c : digits) {
    if (!is_digit(c)) return std::nullopt;
  }
  errno = 0;
  const long long value = std::strtoll(text.c_str(), nullptr, 10);
  if (errno != 0 || value < std::numeric_limits<int>::min() ||
      value > std::numeric_limits<int>::max()) {
    return std::nullopt;
  }
  return static_cast<int>(value);
}

std::optional<double> parse_double(std::string_view token) {
  // What strtod reads and a number of ours may not hold: blanks before it, the "x" of hexadecimal
  // digits and the "(" of a NaN's payload. A NUL would end the text for strtod.
  std::string text(token);
  for (char& c : text) {
    if (c == '\0' || is_space(c) || c == 'x' || c == 'X' || c == '(') return std::nullopt;
    if (c == 'd') c = 'e';
    if (c == 'D') c = 'E';
  }
  char* end = nullptr;
  const double value = std::strtod(text.c_str(), &end);
  if (text.empty() || end != text.c_str() + text.size()) return std::nullopt;
  const bool is_named = text.find_first_of("nN") != std::string::npos;
  if (std::isinf(value) && !is_named) return std::nullopt;
  return value;
}

}  // namespace kelp::core::text::restated
