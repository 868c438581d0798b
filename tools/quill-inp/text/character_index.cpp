#include "quill-inp/text/character_index.hpp"

#include "quill-inp/text/utf8.hpp"

namespace kelp::input::quill::tool {

namespace {

constexpr std::size_t step = 256;

std::size_t length_at(std::string_view text, std::size_t offset) {
  const auto character = first_character(text.substr(offset));
  return character ? character->length : 1;
}

}  // namespace

CharacterIndex::CharacterIndex(std::string_view text) : text_(text) {
  marks_.reserve(text.size() / step + 1);
  std::size_t count = 0;
  for (std::size_t at = 0; at < text.size(); at += length_at(text, at)) {
    if (at >= marks_.size() * step) marks_.push_back({at, count});
    ++count;
  }
  // The end of the text, where a character that crosses the last multiple may be.
  marks_.push_back({text.size(), count});
}

std::size_t CharacterIndex::count_before(std::size_t offset) const {
  Mark mark = marks_[offset / step < marks_.size() ? offset / step : marks_.size() - 1];
  // The mark is after a place in the middle of the character that crosses the multiple.
  while (mark.offset < offset) {
    mark.offset += length_at(text_, mark.offset);
    ++mark.count;
  }
  return mark.count;
}

}  // namespace kelp::input::quill::tool
