#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

#include "ascii.hpp"
#include "eight_bytes.hpp"
#include "kelp/core/text.hpp"
#include "space_bits.hpp"

namespace kelp::core::text {

namespace {

/// A text shorter than space_bits_limit, with all its white space found at once.
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
      // The bits after the text count as white space, so that the last word has an end too.
      const std::size_t length = lowest_bit(spaces_ >> start);
      words.emplace_back(text_.data() + start, length);
    }
  }

 private:
  std::uint64_t word_starts() const { return ~spaces_ & ((spaces_ << 1) | 1); }

  std::string_view text_;
  std::uint64_t spaces_;
};

/// Counts words in a text that comes in pieces of eight bytes.
class WordCounter {
 public:
  void add(const char* bytes) {
    const std::uint64_t spaces = space_flags(load_word(bytes));
    const std::uint64_t starts = ~spaces & ((spaces << 8) | space_before_) & top_bits;
    // The top byte of this product is the sum of the bytes, each of them 0 or 1.
    count_ += static_cast<unsigned>(((starts >> 7) * in_every_byte(1)) >> 56);
    space_before_ = spaces >> 56;
  }

  std::size_t count() const { return count_; }

 private:
  std::uint64_t space_before_ = 0x80;
  std::size_t count_ = 0;
};

std::size_t count_words(std::string_view text) {
  WordCounter counter;
  for (; text.size() >= word_bytes; text.remove_prefix(word_bytes)) counter.add(text.data());
  std::array<char, word_bytes> rest{};
  rest.fill(' ');
  std::copy(text.begin(), text.end(), rest.begin());
  counter.add(rest.data());
  return counter.count();
}

/// Where a text that is not short can be cut without cutting a word: after the last white space of
/// its longest short beginning or, if there is none, after the word that fills this beginning.
std::size_t find_cut(std::string_view text) {
  const std::string_view front = text.substr(0, space_bits_limit - 1);
  const auto last_space = std::find_if(front.rbegin(), front.rend(), is_space);
  if (last_space != front.rend()) return static_cast<std::size_t>(front.rend() - last_space);
  const auto* const word_end = std::find_if(text.begin() + front.size(), text.end(), is_space);
  return static_cast<std::size_t>(word_end - text.begin());
}

std::vector<std::string> split_short(std::string_view text) {
  const ShortText line(text);
  std::vector<std::string> words;
  words.reserve(line.count_words());
  line.append_words(words);
  return words;
}

std::vector<std::string> split_long(std::string_view text) {
  std::vector<std::string> words;
  words.reserve(count_words(text));
  while (text.size() >= space_bits_limit) {
    const std::string_view part = text.substr(0, find_cut(text));
    text.remove_prefix(part.size());
    if (part.size() < space_bits_limit) {
      ShortText(part).append_words(words);
    } else {
      words.emplace_back(part);
    }
  }
  ShortText(text).append_words(words);
  return words;
}

}  // namespace

std::vector<std::string> split_whitespace(std::string_view text) {
  return text.size() < space_bits_limit ? split_short(text) : split_long(text);
}

}  // namespace kelp::core::text
