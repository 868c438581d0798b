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
void check_cut_value(const Source& source, Collector& findings) {
  for (std::size_t i = 0; i < source.command_lines().size(); ++i) {
    Entries entries(pieces_of(source, i));
    auto entry = entries.next();
    while (const auto next = entries.next()) {
      if (entry->value && open_parentheses(*entry->value) > 0)
        findings.add({source.range_of(*entry->value),
                      {text_fact("name", entry->name), text_fact("value", *entry->value)}});
      entry = next;
    }
  }
}

}  // namespace kelp::input::quill::lint
