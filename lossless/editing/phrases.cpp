#include "editing/phrases.hpp"

#include "writer/floating_point_text.hpp"

namespace kelp::input::quill::lossless {

std::string in_apostrophes(std::string_view text) {
  std::string out = "'";
  out += text;
  out += '\'';
  return out;
}

std::string shortest_text(double number) {
  char text[longest_shortest];
  return {text, write_shortest(text, number)};
}

std::string rounded_text(double number) {
  constexpr int digits = 2;
  char text[longest_general(digits)];
  return {text, write_general(text, number, digits)};
}

std::string joined(const std::vector<std::int32_t>& numbers) {
  std::string text;
  for (const std::int32_t number : numbers)
    text += (text.empty() ? "" : " ") + std::to_string(number);
  return text;
}

}  // namespace kelp::input::quill::lossless
