#ifndef KELP_INPUT_QUILL_WRITER_TEXT_BUFFER_HPP
#define KELP_INPUT_QUILL_WRITER_TEXT_BUFFER_HPP

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace kelp::input::quill {

/// Collects pieces of text and appends them to a string many at a time. Most pieces of a line are
/// a few characters long, and appending such a piece on its own takes longer than making it.
///
/// The caller keeps the end of the collected text, so that it can stay in a register: the functions
/// that add text take this end and return the new one, and flush() appends what is left.
class TextBuffer {
 public:
  static constexpr std::size_t capacity = 512;

  /// Keeps a reference to the string.
  explicit TextBuffer(std::string& out) : out_(out) {}

  /// Where the text begins; also its end as long as it is empty.
  char* begin() { return text_.data(); }

  /// Returns where the next `size` characters can be written, which are at most `capacity`: at
  /// `end`, or at the beginning after everything before `end` was appended.
  char* room(char* end, std::size_t size) {
    if (capacity - length(end) >= size) return end;
    flush(end);
    return begin();
  }

  char* add(char* end, char character) {
    end = room(end, sizeof character);
    *end = character;
    return end + sizeof character;
  }

  /// Adds text of any length.
  char* add(char* end, std::string_view text) {
    if (text.size() > capacity) return append_long(end, text);
    end = room(end, text.size());
    return end + text.copy(end, text.size());
  }

  /// Appends everything before `end`.
  void flush(const char* end) { out_.append(text_.data(), length(end)); }

 private:
  std::size_t length(const char* end) const { return static_cast<std::size_t>(end - text_.data()); }

  char* append_long(const char* end, std::string_view text) {
    flush(end);
    out_.append(text);
    return begin();
  }

  std::string& out_;
  std::array<char, capacity> text_;
};

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_WRITER_TEXT_BUFFER_HPP
