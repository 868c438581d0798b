#include "text_samples.hpp"

#include <cstdint>
#include <random>

namespace kelp::core::text {

std::string every_byte() {
  std::string bytes;
  for (int value = 0; value < 256; ++value) bytes += static_cast<char>(value);
  return bytes;
}

std::vector<std::string> random_texts() {
  constexpr int count = 20'000;
  constexpr std::size_t longest = 200;
  constexpr std::string_view spaces = "    \t\t\n\n\r\v\f";
  constexpr std::string_view others{"abYZ09.-#\0\x85\xA0\xFF", 13};
  std::mt19937_64 random(20260101);
  const auto below = [&random](std::size_t limit) { return random() % limit; };
  std::vector<std::string> texts;
  for (int i = 0; i < count; ++i) {
    const std::size_t size = below(longest + 1);
    const std::size_t longest_run = 1 + below(size + 1);
    std::string text;
    while (text.size() < size) {
      const std::string_view bytes = below(2) == 0 ? spaces : others;
      for (std::size_t run = 1 + below(longest_run); run > 0 && text.size() < size; --run) {
        text += bytes[below(bytes.size())];
      }
    }
    texts.push_back(text);
  }
  return texts;
}

std::vector<std::string> every_short_text(std::string_view alphabet, std::size_t longest) {
  std::vector<std::string> texts = {""};
  for (std::size_t shorter = 0, size = 0; size < longest; ++size) {
    for (const std::size_t end = texts.size(); shorter < end; ++shorter) {
      for (const char c : alphabet) texts.push_back(texts[shorter] + c);
    }
  }
  return texts;
}

}  // namespace kelp::core::text
