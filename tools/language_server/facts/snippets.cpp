#include "language_server/facts/snippets.hpp"

#include <algorithm>
#include <cstddef>

#include "kelp/core/text.hpp"

namespace kelp::input::quill::language_server {

namespace {

/// A word of a form, and how many brackets are around it.
struct FormWord {
  std::string text;
  std::size_t depth;
};

std::vector<FormWord> words_of(std::string_view form) {
  std::vector<FormWord> words;
  std::size_t depth = 0;
  for (const std::string& token : core::text::split_whitespace(form)) {
    FormWord word{{}, 0};
    std::size_t closed = 0;
    for (const char c : token) {
      if (c == '[') {
        ++depth;
      } else if (c == ']') {
        ++closed;
      } else {
        word.text += c;
      }
    }
    word.depth = depth;
    depth -= closed;
    words.push_back(word);
  }
  return words;
}

}  // namespace

std::vector<std::string> variants_of(std::string_view form) {
  const std::vector<FormWord> words = words_of(form);
  std::size_t deepest = 0;
  for (const FormWord& word : words) deepest = std::max(deepest, word.depth);
  std::vector<std::string> variants(deepest + 1);
  for (std::size_t depth = 0; depth <= deepest; ++depth) {
    for (const FormWord& word : words) {
      if (word.depth > depth) continue;
      variants[depth] += (variants[depth].empty() ? "" : " ") + word.text;
    }
  }
  return variants;
}

std::string snippet_of(std::string_view form) {
  std::string snippet;
  std::size_t place = 0;
  for (const std::string& word : core::text::split_whitespace(form)) {
    snippet += place == 0 ? word : " ${" + std::to_string(place) + ":" + word + "}";
    ++place;
  }
  return snippet;
}

}  // namespace kelp::input::quill::language_server
