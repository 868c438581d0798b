#include <cstddef>
#include <cstdint>

#include "ascii.hpp"
#include "eight_bytes.hpp"
#include "kelp/core/text.hpp"
#include "space_bits.hpp"

namespace kelp::core::text {

namespace {

/// The words of a text shorter than space_bits_limit, found all at once.
class ShortText {
 public:
  explicit ShortText(std::string_view text) : text_(text), spaces_(space_bits(text)) {}

  std::size_t count_words() const {
    std::size_t count = 0;
    for (std::uint64_t starts = word_starts(); starts != 0; starts &= starts - 1) ++count;
    return count;
  }

  void append_words(std::vector<std::string>& words) const {
    for (std::uint64_t starts = word_starts(); starts != 0; starts &= starts - 1) {
      const std::size_t start = lowest_bit(starts);
      // The bits behind the text are set, so the last word ends too.
      const std::size_t length = lowest_bit(spaces_ >> start);
      words.emplace_back(text_.data() + start, length);
    }
  }

 private:
  std::uint64_t word_starts() const { return ~spaces_ & ((spaces_ << 1) | 1); }

  std::string_view text_;
  std::uint64_t spaces_;
};

std::size_t count_words(std::string_view text) {
  if (text.empty()) return 0;
  std::size_t count = is_space(text.front()) ? 0 : 1;
  for (std::size_t i = 1; i < text.size(); ++i) {
    count += is_space(text[i - 1]) && !is_space(text[i]) ? 1 : 0;
  }
  return count;
}

/// The length of the longest front part of `text` that is short and ends where a word may end.
std::size_t find_cut(std::string_view text) {
  std::size_t cut = space_bits_limit - 1;
  while (cut != 0 && !is_space(text[cut])) --cut;
  if (cut != 0) return cut;
  cut = space_bits_limit;
  while (cut != text.size() && !is_space(text[cut])) ++cut;
  return cut;
}

}  // namespace

std::vector<std::string> split_whitespace(std::string_view text) {
  std::vector<std::string> words;
  if (text.size() < space_bits_limit) {
    const ShortText line(text);
    words.reserve(line.count_words());
    line.append_words(words);
    return words;
  }
  words.reserve(count_words(text));
  while (text.size() >= space_bits_limit) {
    const std::size_t cut = find_cut(text);
    if (cut < space_bits_limit) ShortText(text.substr(0, cut)).append_words(words);
    else words.emplace_back(text.substr(0, cut));
    text.remove_prefix(cut);
  }
  ShortText(text).append_words(words);
  return words;
}

}  // namespace kelp::core::text
