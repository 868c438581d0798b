#include <algorithm>
#include <cstddef>
#include <ios>
#include <limits>
#include <locale>
#include <string_view>

#include "kelp/core/text.hpp"
#include "writer/finite_text.hpp"
#include "writer/floating_point_text.hpp"

namespace kelp::input::quill {

namespace {

/// The facet by which streams print numbers; it is used here without a stream.
class Printer : public std::num_put<char, char*> {};

char* print(char* out, double value, std::ios_base::fmtflags notation, int precision) {
  const Printer printer;
  std::basic_ios<char> format(nullptr);
  format.imbue(std::locale::classic());
  format.flags(notation);
  format.precision(precision);
  return printer.put(out, format, ' ', value);
}

std::string_view text_between(const char* begin, const char* end) {
  return {begin, static_cast<std::size_t>(end - begin)};
}

bool reads_back(std::string_view text, double value) {
  double read = 0.0;
  return kelp::core::text::try_parse_double(text, read) && !(read < value) && !(read > value);
}

/// The digits after the point, and the number after the "e", which has a sign.
struct Shape {
  int decimals = 0;
  int exponent = 0;
};

Shape shape_of(std::string_view scientific) {
  const std::size_t letter = scientific.find('e');
  const std::size_t point = std::min(scientific.find('.'), letter - 1);
  Shape shape;
  shape.decimals = static_cast<int>(letter - point - 1);
  kelp::core::text::try_parse_int(scientific.substr(letter + 1), shape.exponent);
  return shape;
}

/// The fixed notation with the same digits.
char* print_fixed(char* out, double value, const Shape& scientific) {
  const int decimals = std::max(0, scientific.decimals - scientific.exponent);
  return print(out, value, std::ios_base::fixed, decimals);
}

}  // namespace

char* write_finite_fixed(char* out, double value, int decimals) {
  return print(out, value, std::ios_base::fixed, decimals);
}

char* write_finite_general(char* out, double value, int digits) {
  return print(out, value, {}, digits);
}

// The fewest digits that read back. For a few powers of two, whose neighbours below are nearer than
// those above, this is one digit more than necessary.
char* write_finite_shortest_scientific(char* out, double value) {
  constexpr int enough = std::numeric_limits<double>::max_digits10 - 1;
  int decimals = 0;
  char* end = print(out, value, std::ios_base::scientific, decimals);
  while (decimals < enough && !reads_back(text_between(out, end), value))
    end = print(out, value, std::ios_base::scientific, ++decimals);
  return end;
}

char* write_finite_shortest_fixed(char* out, double value) {
  char scientific[longest_shortest];
  const char* const end = write_finite_shortest_scientific(scientific, value);
  return print_fixed(out, value, shape_of(text_between(scientific, end)));
}

char* write_finite_shortest(char* out, double value) {
  char* const end = write_finite_shortest_scientific(out, value);
  const std::string_view scientific = text_between(out, end);
  const Shape shape = shape_of(scientific);
  char fixed[longest_shortest_fixed];
  const std::string_view text = text_between(fixed, print_fixed(fixed, value, shape));
  return text.size() > scientific.size() ? end : std::copy(text.begin(), text.end(), out);
}

}  // namespace kelp::input::quill
