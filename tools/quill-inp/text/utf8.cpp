#include "quill-inp/text/utf8.hpp"

#include <utf8.h>
#include <algorithm>

namespace kelp::input::quill::tool {

namespace {

constexpr std::size_t longest_character = 4;

}  // namespace

std::optional<Character> first_character(std::string_view text) {
  const char* const begin = text.data();
  const char* const end = begin + std::min(text.size(), longest_character);
  if (utf8::find_invalid(begin, end) == begin) return std::nullopt;
  const char* next = begin;
  const char32_t code_point = utf8::unchecked::next(next);
  return Character{code_point, static_cast<std::size_t>(next - begin)};
}

bool is_utf8(std::string_view text) { return utf8::is_valid(text.begin(), text.end()); }

}  // namespace kelp::input::quill::tool
