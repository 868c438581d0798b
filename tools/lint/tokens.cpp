#include "lint/tokens.hpp"

#include <cstddef>
#include <string>

#include "kelp/chem/elements.hpp"
#include "kelp/core/text.hpp"
#include "lint/odd_characters.hpp"

namespace kelp::input::quill::lint {

namespace text = kelp::core::text;

namespace {

bool is_digit(char c) { return '0' <= c && c <= '9'; }

bool is_ascii_sign(char c) { return c == '+' || c == '-'; }

/// Returns the token without the sign that it begins with.
std::string_view without_sign(std::string_view token) {
  if (!token.empty() && is_ascii_sign(token.front())) return token.substr(1);
  const std::vector<OddCharacter> odd = find_odd_characters(token);
  const bool has_minus = !odd.empty() && odd[0].offset == 0 && odd[0].kind == OddKind::Minus;
  return has_minus ? token.substr(odd[0].length) : token;
}

}  // namespace

std::vector<std::string_view> tokens_of(std::string_view line) {
  const std::vector<std::string> words = text::split_whitespace(line);
  std::vector<std::string_view> tokens;
  tokens.reserve(words.size());
  std::size_t at = 0;
  // Only blanks come between two tokens, so the first place where one is found is its own.
  for (const std::string& token : words) {
    at = line.find(token, at);
    tokens.push_back(line.substr(at, token.size()));
    at += token.size();
  }
  return tokens;
}

bool is_integer(std::string_view token) {
  int number = 0;
  return text::try_parse_int(token, number);
}

bool is_number(std::string_view token) {
  double number = 0.0;
  return text::try_parse_double(token, number);
}

bool resembles_number(std::string_view token) {
  std::string_view rest = without_sign(token);
  if (!rest.empty() && (rest.front() == '.' || rest.front() == ',')) rest.remove_prefix(1);
  return !rest.empty() && is_digit(rest.front());
}

bool is_element(std::string_view token) {
  namespace elements = kelp::chem::elements;
  return elements::atomic_number_from_symbol(elements::normalize_symbol(token)).has_value();
}

}  // namespace kelp::input::quill::lint
