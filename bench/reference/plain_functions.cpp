#include "reference/plain_functions.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <limits>
#include <system_error>

#include "kelp/chem/elements.hpp"

namespace kelp::input::quill::bench::plain {

namespace {

bool is_space(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

bool is_digit(char c) { return c >= '0' && c <= '9'; }

char to_lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

char to_upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

/// Enough for the tokens of every kind of line of which an input may have thousands.
constexpr std::size_t usual_tokens = 8;

/// Takes one sign from `token` where a number may begin after it; std::from_chars takes a "-" only.
bool take_sign(std::string_view& token) {
  const bool is_negative = !token.empty() && token.front() == '-';
  if (is_negative || (!token.empty() && token.front() == '+')) token.remove_prefix(1);
  return is_negative;
}

/// For the cases where std::from_chars differs from the contract: the exponent letter "d",
/// magnitudes out of range, words.
bool parse_unusual_double(std::string token, double& magnitude) {
  const std::size_t letter = token.find_first_of("dD");
  if (letter != std::string::npos) token[letter] = 'e';
  const char* const end = token.data() + token.size();
  const auto result = std::from_chars(token.data(), end, magnitude);
  return result.ec == std::errc() && result.ptr == end;
}

constexpr std::size_t letters = 26;
using NumberTable = std::array<std::array<int, letters + 1>, letters>;

/// Asks the element library once for every text that could be a symbol, so that only one source has
/// a list of the symbols.
NumberTable make_number_table() {
  NumberTable table{};
  for (std::size_t first = 0; first < letters; ++first) {
    std::string symbol(1, static_cast<char>('A' + first));
    table[first][0] = chem::elements::atomic_number_from_symbol(symbol).value_or(0);
    symbol.push_back('a');
    for (std::size_t second = 1; second <= letters; ++second, ++symbol[1])
      table[first][second] = chem::elements::atomic_number_from_symbol(symbol).value_or(0);
  }
  return table;
}

// Made before main, so that no timing includes it. If that throws the program ends, and there is
// nothing to measure.
// NOLINTNEXTLINE(cert-err58-cpp)
const NumberTable number_table = make_number_table();

}  // namespace

std::string trim(std::string_view text) {
  while (!text.empty() && is_space(text.front())) text.remove_prefix(1);
  while (!text.empty() && is_space(text.back())) text.remove_suffix(1);
  return std::string(text);
}

std::string to_lower_copy(std::string_view text) {
  std::string copy(text);
  std::transform(copy.begin(), copy.end(), copy.begin(), to_lower);
  return copy;
}

std::string to_upper_copy(std::string_view text) {
  std::string copy(text);
  std::transform(copy.begin(), copy.end(), copy.begin(), to_upper);
  return copy;
}

std::vector<std::string> split_whitespace(std::string_view text) {
  std::vector<std::string> tokens;
  tokens.reserve(usual_tokens);
  const char* const end = text.data() + text.size();
  for (const char* next = text.data();;) {
    while (next != end && is_space(*next)) ++next;
    if (next == end) return tokens;
    const char* const start = next;
    while (next != end && !is_space(*next)) ++next;
    tokens.emplace_back(start, static_cast<std::size_t>(next - start));
  }
}

std::vector<std::string> split_lines(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    if (end == std::string_view::npos) {
      lines.emplace_back(text);
      break;
    }
    const bool ends_in_two = end > 0 && text[end - 1] == '\r';
    lines.emplace_back(text.substr(0, ends_in_two ? end - 1 : end));
    text.remove_prefix(end + 1);
  }
  return lines;
}

bool try_parse_int(std::string_view token, int& value) {
  if (token.size() > 1 && token[0] == '+' && is_digit(token[1])) token.remove_prefix(1);
  int number = 0;
  const char* const end = token.data() + token.size();
  const auto result = std::from_chars(token.data(), end, number);
  if (result.ec != std::errc() || result.ptr != end) return false;
  value = number;
  return true;
}

bool try_parse_double(std::string_view token, double& value) {
  const bool is_negative = take_sign(token);
  if (token.empty() || token.front() == '-') return false;
  double magnitude = 0.0;
  const char* const end = token.data() + token.size();
  const auto result = std::from_chars(token.data(), end, magnitude);
  const bool is_usual = result.ec == std::errc() && result.ptr == end;
  if (!is_usual && !parse_unusual_double(std::string(token), magnitude)) return false;
  value = is_negative ? -magnitude : magnitude;
  return true;
}

std::string normalize_symbol(std::string_view symbol) {
  std::string normal = to_lower_copy(symbol);
  if (!normal.empty()) normal.front() = to_upper(normal.front());
  return normal;
}

std::optional<int> atomic_number_from_symbol(std::string_view symbol) {
  if (symbol.empty() || symbol.size() > 2 || symbol[0] < 'A' || symbol[0] > 'Z')
    return std::nullopt;
  if (symbol.size() == 2 && (symbol[1] < 'a' || symbol[1] > 'z')) return std::nullopt;
  const auto row = static_cast<std::size_t>(symbol[0] - 'A');
  const auto column = symbol.size() == 1 ? 0 : static_cast<std::size_t>(symbol[1] - 'a') + 1;
  const int number = number_table[row][column];
  return number == 0 ? std::nullopt : std::optional<int>(number);
}

}  // namespace kelp::input::quill::bench::plain
