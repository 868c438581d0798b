#include "properties/violation.hpp"

namespace kelp::input::quill {

namespace {

std::uint64_t checked = 0;

std::string hexadecimal(unsigned char byte) {
  static constexpr std::string_view digits = "0123456789abcdef";
  return {'\\', 'x', digits[byte / 16], digits[byte % 16]};
}

}  // namespace

std::string printable(std::string_view bytes) {
  std::string shown;
  for (const char c : bytes) {
    if (c == '\n')
      shown += "\\n";
    else if (c == '\\')
      shown += "\\\\";
    else if (' ' <= c && c <= '~')
      shown += c;
    else
      shown += hexadecimal(static_cast<unsigned char>(c));
  }
  return shown;
}

void require(bool holds, std::string_view property, std::string_view subject) {
  ++checked;
  if (holds) return;
  throw Violation("does not hold: " + std::string(property) + "\n  for \"" + printable(subject) +
                  "\"");
}

std::uint64_t statements_checked() { return checked; }

}  // namespace kelp::input::quill
