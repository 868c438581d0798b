#include "quill-inp/formats/json_writer.hpp"

#include <charconv>
#include <cmath>
#include <utility>

#include "quill-inp/formats/json_text.hpp"
#include "quill-inp/text/hexadecimal.hpp"
#include "quill-inp/text/utf8.hpp"
#include "writer/floating_point_text.hpp"

namespace kelp::input::quill::tool {

namespace {

constexpr std::size_t most_waiting = std::size_t{64} * 1024;
constexpr std::size_t longest_integer = std::string_view("-9223372036854775808").size();

/// Returns how a character is escaped after the backslash, or NUL for one that has no short form.
constexpr char short_escape(char c) {
  switch (c) {
    case '"':
    case '\\':
      return c;
    case '\b':
      return 'b';
    case '\f':
      return 'f';
    case '\n':
      return 'n';
    case '\r':
      return 'r';
    case '\t':
      return 't';
    default:
      return '\0';
  }
}

constexpr bool needs_escape(char c) {
  return c == '"' || c == '\\' || static_cast<unsigned char>(c) < 0x20;
}

std::array<char, 2> hexadecimal(char byte) {
  const auto number = static_cast<unsigned char>(byte);
  return {hexadecimal_digits[number >> 4U], hexadecimal_digits[number & 0xFU]};
}

/// Numbers between these are written without an exponent.
constexpr double least_without_exponent = 1e-4;
constexpr double most_without_exponent = 1e15;

bool has_exponent(double number) {
  const double size = std::fabs(number);
  return size != 0.0 && (size < least_without_exponent || size >= most_without_exponent);
}

}  // namespace

JsonWriter::JsonWriter(Sink sink) : sink_(std::move(sink)) { waiting_.reserve(most_waiting); }

JsonWriter& JsonWriter::member(std::string_view name) {
  begin_entry();
  put('"');
  put(name);
  put("\": ");
  return *this;
}

void JsonWriter::text(std::string_view text) {
  begin_value();
  if (is_utf8(text)) {
    put_escaped(text);
  } else {
    put_bytes(text);
  }
}

void JsonWriter::number(double number) {
  if (!std::isfinite(number)) {
    text(special_name(number));
    return;
  }
  const bool is_scientific = has_exponent(number);
  char digits[longest_shortest_fixed];
  const char* const last = is_scientific ? write_shortest_scientific(digits, number)
                                         : write_shortest_fixed(digits, number);
  const std::string_view written(digits, static_cast<std::size_t>(last - digits));
  value(written);
  // Without a point, readers that tell integers from other numbers would see an integer.
  if (!is_scientific && written.find('.') == std::string_view::npos) put(".0");
}

void JsonWriter::integer(std::int64_t number) {
  char digits[longest_integer];
  char* const last = std::to_chars(digits, digits + sizeof digits, number).ptr;
  value({digits, static_cast<std::size_t>(last - digits)});
}

void JsonWriter::finish() {
  put('\n');
  flush();
}

void JsonWriter::begin(char bracket, Layout layout) {
  begin_value();
  put(bracket);
  levels_.at(depth_++) = {layout, false, bracket == '['};
}

void JsonWriter::end(char bracket) {
  const Level level = levels_[--depth_];
  if (level.layout == Layout::Lines && level.has_entries) begin_line();
  put(bracket);
}

void JsonWriter::begin_entry() {
  Level& level = levels_[depth_ - 1];
  const bool is_on_its_line = level.layout == Layout::Lines;
  if (level.has_entries) put(is_on_its_line ? "," : ", ");
  if (is_on_its_line) begin_line();
  level.has_entries = true;
}

void JsonWriter::begin_value() {
  if (depth_ != 0 && levels_[depth_ - 1].is_list) begin_entry();
}

void JsonWriter::begin_line() {
  put('\n');
  for (std::size_t i = 0; i < depth_; ++i) put("  ");
}

void JsonWriter::value(std::string_view word) {
  begin_value();
  put(word);
}

void JsonWriter::put(std::string_view piece) {
  if (waiting_.size() + piece.size() > most_waiting) flush();
  if (piece.size() > most_waiting) {
    sink_(piece);
  } else {
    waiting_ += piece;
  }
}

void JsonWriter::put_escaped(std::string_view text) {
  put('"');
  while (!text.empty()) {
    std::size_t plain = 0;
    while (plain < text.size() && !needs_escape(text[plain])) ++plain;
    put(text.substr(0, plain));
    text.remove_prefix(plain);
    if (text.empty()) break;
    const char escape = short_escape(text.front());
    put('\\');
    if (escape != '\0') {
      put(escape);
    } else {
      const std::array<char, 2> digits = hexadecimal(text.front());
      put("u00");
      put({digits.data(), digits.size()});
    }
    text.remove_prefix(1);
  }
  put('"');
}

void JsonWriter::put_bytes(std::string_view bytes) {
  put("{\"");
  put(bytes_member);
  put("\": \"");
  for (const char byte : bytes) {
    const std::array<char, 2> digits = hexadecimal(byte);
    put({digits.data(), digits.size()});
  }
  put("\"}");
}

void JsonWriter::flush() {
  sink_(waiting_);
  waiting_.clear();
}

}  // namespace kelp::input::quill::tool
