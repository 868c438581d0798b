#include "grammar.hpp"

#include <cctype>
#include <sstream>
#include <stdexcept>

namespace kelp::input::quill {

namespace {

bool is_digit(char c) { return c >= '0' && c <= '9'; }

bool is_in_name(char c) { return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '-'; }

void skip_blanks(const std::string& text, std::size_t& at) {
  while (at < text.size() && text[at] == ' ') ++at;
}

std::string take_digits(const std::string& text, std::size_t& at) {
  const std::size_t start = at;
  while (at < text.size() && is_digit(text[at])) ++at;
  return text.substr(start, at - start);
}

/// Escapes every character that has a meaning in an expression.
std::string quoted(const std::string& literal) {
  std::string expression;
  for (const char c : literal)
    expression += is_in_name(c) && c != '-' ? std::string(1, c) : std::string("\\") + c;
  return expression;
}

/// "%x21-FF" or "%x20". Bytes above 0x7F are written as all that are not below, since their order
/// in expressions is not reliable.
std::string byte_range(const std::string& text, std::size_t& at) {
  const std::string first = text.substr(at + 2, 2);
  at += 4;
  std::string last = first;
  if (at < text.size() && text[at] == '-') {
    last = text.substr(at + 1, 2);
    at += 3;
  }
  if (last != "FF") return "[\\x" + first + "-\\x" + last + "]";
  return "(?:[\\x" + first + "-\\x7F]|[^\\x00-\\x7F])";
}

}  // namespace

Grammar::Grammar(const std::string& rules) {
  std::istringstream lines(rules);
  std::string name;
  for (std::string line; std::getline(lines, line);) {
    line = line.substr(0, line.find("   ;"));
    if (line.empty()) continue;
    if (line.front() != ' ') {
      const std::size_t equals = line.find('=');
      name = line.substr(0, line.find(' '));
      line = line.substr(equals + 1);
    }
    rules_[name] += line;
  }
}

// The functions call one another as the rules of the notation do; a page's rules are not deep.
// NOLINTBEGIN(misc-no-recursion)

std::string Grammar::expression(const std::string& rule) const {
  if (rule == "ALPHA") return "[A-Za-z]";
  if (rule == "DIGIT") return "[0-9]";
  if (rule == "OCTET") return "[^\\n]";
  std::size_t at = 0;
  return "(?:" + alternatives(rules_.at(rule), at) + ")";
}

/// alternatives = concatenation *("/" concatenation) ; to the end or to a closing bracket
std::string Grammar::alternatives(const std::string& text, std::size_t& at) const {
  std::string expression;
  for (skip_blanks(text, at); at < text.size(); skip_blanks(text, at)) {
    if (text[at] == ')' || text[at] == ']') break;
    if (text[at] == '/') {
      expression += '|';
      ++at;
    } else {
      expression += repetition(text, at);
    }
  }
  return expression;
}

/// repetition = [n / [n] "*" [m]] element
std::string Grammar::repetition(const std::string& text, std::size_t& at) const {
  const std::string least = take_digits(text, at);
  const bool is_range = text[at] == '*';
  if (is_range) ++at;
  const std::string most = is_range ? take_digits(text, at) : least;
  std::string piece = element(text, at);
  if (!is_range && least.empty()) return piece;
  const std::string from = least.empty() ? "0" : least;
  return "(?:" + piece + "){" + from + (is_range ? "," + most : "") + "}";
}

/// element = "(" alternatives ")" / "[" alternatives "]" / literal / byte-range / rule-name
std::string Grammar::element(const std::string& text, std::size_t& at) const {
  const char first = text[at];
  if (first == '%') return byte_range(text, at);
  if (first == '"') {
    const std::size_t end = text.find('"', at + 1);
    const std::string literal = text.substr(at + 1, end - at - 1);
    at = end + 1;
    return quoted(literal);
  }
  if (first == '(' || first == '[') {
    ++at;
    const std::string inner = alternatives(text, at);
    ++at;
    return "(?:" + inner + (first == '[' ? ")?" : ")");
  }
  const std::size_t start = at;
  while (at < text.size() && is_in_name(text[at])) ++at;
  if (at == start) throw std::invalid_argument("not a rule: " + text.substr(at));
  return expression(text.substr(start, at - start));
}

// NOLINTEND(misc-no-recursion)

}  // namespace kelp::input::quill
