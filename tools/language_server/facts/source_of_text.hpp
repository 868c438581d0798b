#ifndef KELP_INPUT_QUILL_LANGUAGE_SERVER_FACTS_SOURCE_OF_TEXT_HPP
#define KELP_INPUT_QUILL_LANGUAGE_SERVER_FACTS_SOURCE_OF_TEXT_HPP

#include <utility>

#include "lint/source.hpp"

namespace kelp::input::quill::language_server {

/// A text with where its parts are, as the linter sees it, together with the options for that.
/// Keeps a reference to the text.
class SourceOfText {
 public:
  /// Without `read_reference`, files that the text refers to are not read.
  explicit SourceOfText(const lossless::ReadText& read,
                        decltype(lint::Options::read_reference) read_reference = {})
      : options_{{}, 0.0, nullptr, std::move(read_reference)}, source_(read, options_) {}

  const lint::Source& operator*() const { return source_; }
  const lint::Source* operator->() const { return &source_; }

 private:
  lint::Options options_;
  lint::Source source_;
};

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_LANGUAGE_SERVER_FACTS_SOURCE_OF_TEXT_HPP
