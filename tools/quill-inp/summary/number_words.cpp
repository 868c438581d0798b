#include "quill-inp/summary/number_words.hpp"

#include <charconv>
#include <cstddef>

namespace kelp::input::quill::tool {

namespace {

constexpr std::size_t longest_text = 32;  // the shortest text of a double has at most 24 characters

}  // namespace

std::string shortest_text(double number) {
  char text[longest_text];
  return {text, std::to_chars(text, text + sizeof text, number).ptr};
}

std::string rounded_text(double number) {
  char text[longest_text];
  const auto format = std::chars_format::general;
  return {text, std::to_chars(text, text + sizeof text, number, format, 2).ptr};
}

}  // namespace kelp::input::quill::tool
