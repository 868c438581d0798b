#ifndef KELP_INPUT_QUILL_LANGUAGE_SERVER_FEATURES_MARKUP_HPP
#define KELP_INPUT_QUILL_LANGUAGE_SERVER_FEATURES_MARKUP_HPP

#include <string>
#include <string_view>

#include "language_server/protocol/json.hpp"

namespace kelp::input::quill::language_server {

/// A text for people, in Markdown or without it.
class Markup {
 public:
  explicit Markup(bool is_markdown) : is_markdown_(is_markdown) {}

  /// Adds words of the program, which have no characters with a meaning in Markdown.
  Markup& add(std::string_view words);

  /// Adds words of the program that stand out.
  Markup& add_strong(std::string_view words);

  /// Adds a piece of a document, which is shown as it is, on one line.
  Markup& add_code(std::string_view piece);

  /// Begins a new line, unless nothing is before it.
  Markup& begin_line();

  /// Adds a page that is written in Markdown, apart from what is before it.
  Markup& add_page(std::string_view page);

  bool is_empty() const { return text_.empty(); }

  /// Returns the MarkupContent of the protocol.
  Json json() const;

 private:
  bool is_markdown_;
  std::string text_ = {};
};

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_LANGUAGE_SERVER_FEATURES_MARKUP_HPP
