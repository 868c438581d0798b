#include <cstddef>
#include <string>
#include <vector>

#include "properties/reading.hpp"
#include "properties/violation.hpp"
#include "properties/warning_text.hpp"
#include "support/comparison.hpp"

namespace kelp::input::quill {

namespace {

/// The text with `before` before every line and `end` for every "\n".
std::string laid_out(std::string_view text, std::string_view before, std::string_view end) {
  std::string result(before);
  for (const char c : text) {
    if (c != '\n') {
      result += c;
      continue;
    }
    result += end;
    result += before;
  }
  return result;
}

/// The warnings as they are when every line number has become `factor` times as large.
std::vector<std::string> renumbered(const std::vector<std::string>& warnings,
                                    std::uint64_t factor) {
  std::vector<std::string> result;
  for (const std::string& warning : warnings) {
    const SplitWarning parts = split_warning(warning);
    result.push_back(parts.is_of_a_line
                         ? "Line " + std::to_string(factor * parts.line) + ": " + parts.message
                         : warning);
  }
  return result;
}

}  // namespace

void check_that_layout_does_not_matter(std::string_view text, Reader* read) {
  const ParseResult plain = read(text);
  require(read(laid_out(text, "", "\r\n")) == plain, "CRLF means what LF means", text);
  require(read(std::string(text) + "\n") == plain, "one more line end means nothing", text);
  require(read(laid_out(text, " \t", "\t \n") + "\t ") == plain, "blanks around lines mean nothing",
          text);

  ParseResult expected = plain;
  expected.warnings = renumbered(plain.warnings, 3);
  require(read(laid_out(text, "\n \t\n", "\n")) == expected, "blank lines mean nothing", text);
}

}  // namespace kelp::input::quill
