#include <algorithm>

#include "lint/checks/checks.hpp"
#include "lint/header_line.hpp"

namespace kelp::input::quill::lint {

namespace {

/// How many parentheses are open at the end of a value. Within quotes they have no meaning.
std::ptrdiff_t open_parentheses(std::string_view value) {
  const bool is_quoted = value.size() >= 2 && value.front() == value.back() &&
                         (value.front() == '"' || value.front() == '\'');
  if (is_quoted) return 0;
  return std::count(value.begin(), value.end(), '(') - std::count(value.begin(), value.end(), ')');
}

}  // namespace

// "d=(e,f)" is cut at its comma: the value "(e" and the parameter "f)".
Findings check_cut_value(const Source& source) {
  Findings findings;
  for (std::size_t i = 0; i < source.command_lines().size(); ++i) {
    const std::vector<ParameterPieces> entries = entries_of(pieces_of(source, i));
    for (std::size_t k = 0; k + 1 < entries.size(); ++k) {
      if (!entries[k].value || open_parentheses(*entries[k].value) <= 0) continue;
      findings.push_back(
          {source.range_of(*entries[k].value),
           {text_fact("name", entries[k].name), text_fact("value", *entries[k].value)}});
    }
  }
  return findings;
}

}  // namespace kelp::input::quill::lint
