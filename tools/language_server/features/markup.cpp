#include "language_server/features/markup.hpp"

#include <algorithm>
#include <cstddef>

namespace kelp::input::quill::language_server {

namespace {

/// Returns how many backticks in a row the text has at most.
std::size_t longest_run_of_backticks(std::string_view text) {
  std::size_t longest = 0;
  std::size_t run = 0;
  for (const char c : text) {
    run = c == '`' ? run + 1 : 0;
    longest = std::max(longest, run);
  }
  return longest;
}

}  // namespace

Markup& Markup::add(std::string_view words) {
  text_ += words;
  return *this;
}

Markup& Markup::add_strong(std::string_view words) {
  const std::string_view mark = is_markdown_ ? "**" : "";
  text_.append(mark).append(words).append(mark);
  return *this;
}

// The blanks inside the backticks let the piece begin and end with backticks; they are not shown.
Markup& Markup::add_code(std::string_view piece) {
  if (piece.empty()) return add("(empty)");
  const std::size_t run = longest_run_of_backticks(piece);
  const std::string fence(is_markdown_ ? run + 1 : 0, '`');
  const std::string_view padding = is_markdown_ && run > 0 ? " " : "";
  text_.append(fence).append(padding).append(piece).append(padding).append(fence);
  return *this;
}

// Two blanks at the end of a line are the line break of Markdown.
Markup& Markup::begin_line() {
  if (!text_.empty()) text_ += is_markdown_ ? "  \n" : "\n";
  return *this;
}

Markup& Markup::add_page(std::string_view page) {
  if (!text_.empty()) text_ += is_markdown_ ? "\n\n---\n\n" : "\n\n";
  while (!page.empty() && page.back() == '\n') page.remove_suffix(1);
  text_ += page;
  return *this;
}

Json Markup::json() const {
  return {{"kind", is_markdown_ ? "markdown" : "plaintext"}, {"value", text_}};
}

}  // namespace kelp::input::quill::language_server
