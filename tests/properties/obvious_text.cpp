#include "properties/obvious_text.hpp"

#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <limits>

namespace kelp::input::quill::obvious {

namespace {

constexpr std::string_view blanks = " \t\n\v\f\r";
constexpr std::string_view lower_letters = "abcdefghijklmnopqrstuvwxyz";
constexpr std::string_view upper_letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
constexpr std::string_view digits = "0123456789";

bool is_one_of(char c, std::string_view set) { return set.find(c) != std::string_view::npos; }

std::string exchanged(std::string_view text, std::string_view from, std::string_view to) {
  std::string result;
  for (const char c : text) {
    const std::size_t place = from.find(c);
    result += place == std::string_view::npos ? c : to[place];
  }
  return result;
}

/// Moves `at` over the digits there and returns how many there were.
std::size_t skip_digits(std::string_view text, std::size_t& at) {
  const std::size_t start = at;
  while (at < text.size() && is_digit(text[at])) ++at;
  return at - start;
}

bool skip_one_of(std::string_view text, std::size_t& at, std::string_view set) {
  const bool is_there = at < text.size() && is_one_of(text[at], set);
  if (is_there) ++at;
  return is_there;
}

bool is_integer(std::string_view token) {
  std::size_t at = 0;
  skip_one_of(token, at, "+-");
  return skip_digits(token, at) > 0 && at == token.size();
}

bool is_decimal(std::string_view token) {
  std::size_t at = 0;
  skip_one_of(token, at, "+-");
  std::size_t mantissa_digits = skip_digits(token, at);
  if (skip_one_of(token, at, ".")) mantissa_digits += skip_digits(token, at);
  if (mantissa_digits == 0) return false;
  if (at == token.size()) return true;
  if (!skip_one_of(token, at, "eEdD")) return false;
  skip_one_of(token, at, "+-");
  return skip_digits(token, at) > 0 && at == token.size();
}

bool is_name_of_number(std::string_view token) {
  std::size_t at = 0;
  skip_one_of(token, at, "+-");
  const std::string name = lower(token.substr(at));
  return name == "inf" || name == "infinity" || name == "nan";
}

}  // namespace

bool is_blank(char c) { return is_one_of(c, blanks); }

bool is_letter(char c) { return is_one_of(c, lower_letters) || is_one_of(c, upper_letters); }

bool is_digit(char c) { return is_one_of(c, digits); }

std::string trim(std::string_view text) {
  const std::size_t first = text.find_first_not_of(blanks);
  if (first == std::string_view::npos) return "";
  const std::size_t last = text.find_last_not_of(blanks);
  return std::string(text.substr(first, last - first + 1));
}

std::string lower(std::string_view text) { return exchanged(text, upper_letters, lower_letters); }

std::string upper(std::string_view text) { return exchanged(text, lower_letters, upper_letters); }

std::vector<std::string> words(std::string_view text) {
  std::vector<std::string> found;
  bool in_word = false;
  for (const char c : text) {
    if (!is_blank(c) && !in_word) found.emplace_back();
    in_word = !is_blank(c);
    if (in_word) found.back() += c;
  }
  return found;
}

std::vector<std::string> lines(std::string_view text) {
  std::vector<std::string> found;
  std::string line;
  for (const char c : text) {
    if (c != '\n') {
      line += c;
      continue;
    }
    if (!line.empty() && line.back() == '\r') line.pop_back();
    found.push_back(line);
    line.clear();
  }
  if (!line.empty()) found.push_back(line);
  return found;
}

std::string rest_after_first_word(std::string_view text) {
  std::size_t at = 0;
  while (at < text.size() && is_blank(text[at])) ++at;
  while (at < text.size() && !is_blank(text[at])) ++at;
  while (at < text.size() && is_blank(text[at])) ++at;
  return std::string(text.substr(at));
}

std::optional<int> integer(std::string_view token) {
  if (!is_integer(token)) return std::nullopt;
  // Numbers too large for a long long come back as its largest, which is too large for an int.
  const long long value = std::strtoll(std::string(token).c_str(), nullptr, 10);
  if (value < std::numeric_limits<int>::min() || value > std::numeric_limits<int>::max())
    return std::nullopt;
  return static_cast<int>(value);
}

std::optional<double> number(std::string_view token) {
  if (is_name_of_number(token)) return std::strtod(std::string(token).c_str(), nullptr);
  if (!is_decimal(token)) return std::nullopt;
  const double value = std::strtod(exchanged(token, "dD", "ee").c_str(), nullptr);
  if (std::isinf(value)) return std::nullopt;
  return value;
}

}  // namespace kelp::input::quill::obvious
