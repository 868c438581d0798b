#include "lint/checks/checks.hpp"
#include "lint/header_line.hpp"

namespace kelp::input::quill::lint {

namespace {

bool is_quote(char c) { return c == '"' || c == '\''; }

/// Returns the position of the quote in an entry that is not closed by another one, or the end. An
/// apostrophe within a word is not meant as a quote, but the reader takes it for one.
std::size_t find_unclosed_quote(std::string_view text) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (!is_quote(text[i])) continue;
    const std::size_t end = text.find(text[i], i + 1);
    if (end == std::string_view::npos) return i;
    i = end;
  }
  return text.size();
}

/// A value of an assignment is unquoted only if it ends with the quote that it begins with.
bool is_half_quoted(std::string_view value) {
  return !value.empty() && is_quote(value.front()) &&
         value.find(value.front(), 1) == std::string_view::npos;
}

void add_finding(const Source& source, std::string_view text, std::size_t at, Collector& findings) {
  findings.add({source.range_of(text.substr(at, 1)), {text_fact("text", text.substr(at))}});
}

}  // namespace

void check_unclosed_quote(const Source& source, Collector& findings) {
  for (std::size_t i = 0; i < source.command_lines().size(); ++i) {
    const HeaderPieces& pieces = pieces_of(source, i);
    if (is_half_quoted(pieces.value)) add_finding(source, pieces.value, 0, findings);
    const std::size_t at = find_unclosed_quote(pieces.list);
    if (at < pieces.list.size()) add_finding(source, pieces.list, at, findings);
  }
}

}  // namespace kelp::input::quill::lint
