#include "quill-inp/text/character_index.hpp"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "quill-inp/text/utf8.hpp"

namespace kelp::input::quill::tool {
namespace {

std::string repeated(const std::string& piece, std::size_t count) {
  std::string text;
  for (std::size_t i = 0; i < count; ++i) text += piece;
  return text;
}

TEST(CharacterIndex, CountsWhatBeginsBeforeEveryByte) {
  // Characters of one to four bytes cross every multiple of the step in some of these.
  const std::string mixed = "a\xC3\xA9\xE2\x88\x92\xF0\x9F\x98\x80\xFF";
  for (const std::string& text :
       {std::string(), std::string("a"), std::string(256, 'a'), std::string(257, 'a'),
        repeated(mixed, 100), "a" + repeated("\xE2\x88\x92", 300), repeated("\xFF", 600),
        "ab" + repeated("\xF0\x9F\x98\x80", 200)}) {
    const CharacterIndex index(text);
    std::size_t count = 0;
    for (std::size_t at = 0; at < text.size();) {
      const auto character = first_character(std::string_view(text).substr(at));
      const std::size_t length = character ? character->length : 1;
      EXPECT_EQ(index.count_before(at), count) << at;
      ++count;
      for (std::size_t inside = 1; inside < length; ++inside)
        EXPECT_EQ(index.count_before(at + inside), count) << at + inside;
      at += length;
    }
    EXPECT_EQ(index.count_before(text.size()), count);
  }
}

}  // namespace
}  // namespace kelp::input::quill::tool
