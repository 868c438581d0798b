#include "language_server/documents/unit_counts.hpp"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace kelp::input::quill::language_server {

namespace {

std::string repeated(const std::string& piece, std::size_t count) {
  std::string text;
  for (std::size_t i = 0; i < count; ++i) text += piece;
  return text;
}

TEST(UnitCounts, AreThoseOfEveryPiece) {
  // Characters of one to four bytes are on both sides of every mark in some of these.
  const std::string mixed = "a\xC3\xA9\xE2\x88\x92\xF0\x9F\x98\x80";
  for (const std::string& text :
       {std::string(), std::string("a"), std::string(256, 'a'), std::string(257, 'a'),
        std::string(512, 'a'), repeated(mixed, 60), "a" + repeated("\xF0\x9F\x98\x80", 140)}) {
    for (const auto encoding :
         {PositionEncoding::Utf8, PositionEncoding::Utf16, PositionEncoding::Utf32}) {
      const UnitCounts counts(text, encoding);
      for (std::size_t begin = 0; begin <= text.size(); begin += 3) {
        for (std::size_t end = begin; end <= text.size(); ++end)
          ASSERT_EQ(counts.between(begin, end, text),
                    count_units(std::string_view(text).substr(begin, end - begin), encoding))
              << begin << ' ' << end << ' ' << text.size();
      }
    }
  }
}

}  // namespace

}  // namespace kelp::input::quill::language_server
