#include "properties/text_functions.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>

#include "properties/obvious_elements.hpp"
#include "properties/obvious_text.hpp"
#include "properties/violation.hpp"

namespace kelp::input::quill {

namespace {

std::uint64_t bits_of(double value) {
  std::uint64_t bits = 0;
  std::memcpy(&bits, &value, sizeof value);
  return bits;
}

void check_integer(std::string_view token, const TextFunctions& functions) {
  constexpr int untouched = -20240521;
  int value = untouched;
  const bool is_read = functions.try_parse_int(token, value);
  const std::optional<int> expected = obvious::integer(token);
  require(is_read == expected.has_value(), "try_parse_int() knows integers", token);
  require(value == expected.value_or(untouched), "try_parse_int() gives their value", token);
}

void check_double(std::string_view token, const TextFunctions& functions) {
  constexpr double untouched = -20240521.5;
  double value = untouched;
  const bool is_read = functions.try_parse_double(token, value);
  const std::optional<double> expected = obvious::number(token);
  require(is_read == expected.has_value(), "try_parse_double() knows numbers", token);
  require(bits_of(value) == bits_of(expected.value_or(untouched)),
          "try_parse_double() gives the nearest double", token);
}

void check_words(std::string_view view, const TextFunctions& functions) {
  const std::vector<std::string> words = functions.split_whitespace(view);
  require(words == obvious::words(view), "split_whitespace() gives the words", view);
  std::string joined;
  for (const std::string& word : words) joined += word;
  std::string without_blanks(view);
  without_blanks.erase(
      std::remove_if(without_blanks.begin(), without_blanks.end(), obvious::is_blank),
      without_blanks.end());
  require(joined == without_blanks, "the words are the text without white space", view);
}

void check_lines(std::string_view view, const TextFunctions& functions) {
  const std::vector<std::string> lines = functions.split_lines(view);
  require(lines == obvious::lines(view), "split_lines() gives the lines", view);
  const auto line_ends = static_cast<std::size_t>(std::count(view.begin(), view.end(), '\n'));
  const bool has_unended_line = !view.empty() && view.back() != '\n';
  require(lines.size() == line_ends + (has_unended_line ? 1 : 0),
          "there are as many lines as line ends, and one more without a last one", view);
}

void check_symbols(std::string_view view, const TextFunctions& functions) {
  const std::string symbol = functions.normalize_symbol(view);
  require(symbol == obvious::normal_symbol(view), "normalize_symbol() sets the letter case", view);
  require(functions.atomic_number_from_symbol(view) == obvious::atomic_number(view),
          "atomic_number_from_symbol() knows the elements", view);
  require(functions.atomic_number_from_symbol(symbol) == obvious::atomic_number(symbol),
          "atomic_number_from_symbol() knows normalised symbols", view);
}

}  // namespace

void check_text_functions(std::string_view bytes, const TextFunctions& functions) {
  const auto block = std::make_unique<char[]>(bytes.size());
  std::copy(bytes.begin(), bytes.end(), block.get());
  const std::string_view view(block.get(), bytes.size());

  require(functions.trim(view) == obvious::trim(view), "trim() takes outer blanks away", view);
  require(functions.to_lower_copy(view) == obvious::lower(view), "to_lower_copy() folds letters",
          view);
  require(functions.to_upper_copy(view) == obvious::upper(view), "to_upper_copy() folds letters",
          view);
  check_words(view, functions);
  check_lines(view, functions);
  check_integer(view, functions);
  check_double(view, functions);
  check_symbols(view, functions);
}

}  // namespace kelp::input::quill
