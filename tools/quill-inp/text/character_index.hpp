#ifndef KELP_INPUT_QUILL_TOOL_TEXT_CHARACTER_INDEX_HPP
#define KELP_INPUT_QUILL_TOOL_TEXT_CHARACTER_INDEX_HPP

#include <cstddef>
#include <string_view>
#include <vector>

namespace kelp::input::quill::tool {

/// Counts the characters of a text from its beginning to any place, without reading all of them
/// each time. Keeps the view.
class CharacterIndex {
 public:
  explicit CharacterIndex(std::string_view text);

  /// Returns how many characters begin before a byte of the text. A byte that is not part of one
  /// counts as one.
  std::size_t count_before(std::size_t offset) const;

 private:
  /// The first character that begins at a multiple of the step or after it.
  struct Mark {
    std::size_t offset;
    std::size_t count;
  };

  std::string_view text_;
  std::vector<Mark> marks_ = {};
};

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_TEXT_CHARACTER_INDEX_HPP
