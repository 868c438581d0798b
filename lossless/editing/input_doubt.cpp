#include "kelp/input/quill/lossless/input_doubt.hpp"

#include <algorithm>
#include <string_view>

namespace kelp::input::quill::lossless {

namespace {

using Kind = InputDoubt::Kind;

bool begins_with(std::string_view text, std::string_view beginning) {
  return text.substr(0, beginning.size()) == beginning;
}

/// An ASCII character takes two bytes in UTF-16, one of which is NUL, and an input begins with one.
std::optional<Kind> find_encoding_doubt(std::string_view text) {
  if (begins_with(text, "\xEF\xBB\xBF")) return Kind::ByteOrderMark;
  if (begins_with(text, "\xFF\xFE") || begins_with(text, "\xFE\xFF")) return Kind::Utf16;
  if (text.size() % 2 != 0 || text.empty()) return std::nullopt;
  if (text[0] != '\0' && text[1] == '\0') return Kind::Utf16LittleEndian;
  if (text[0] == '\0' && text[1] != '\0') return Kind::Utf16BigEndian;
  return std::nullopt;
}

/// Returns the number, counted from 1, of the line that holds the byte at `offset`.
std::size_t line_of(std::size_t offset, const std::vector<LineRecord>& lines) {
  const auto begins_after = [](std::size_t place, const LineRecord& line) {
    return place < line.offset;
  };
  const auto after = std::upper_bound(lines.begin(), lines.end(), offset, begins_after);
  return static_cast<std::size_t>(after - lines.begin());
}

bool has_sections(const QuillInput& input) {
  const GeometryBlock& geometry = input.geometry;
  return !input.commands.empty() || geometry.kind != GeometryKind::None ||
         geometry.has_charge_and_multiplicity;
}

bool is_blank(const LineRecord& line) { return line.role == LineRole::Blank; }

}  // namespace

std::optional<InputDoubt> find_input_doubt(const ReadText& read) {
  if (const auto encoding = find_encoding_doubt(read.text)) return InputDoubt{*encoding, 1};
  const std::size_t nul = read.text.find('\0');
  if (nul != std::string::npos) return InputDoubt{Kind::NulByte, line_of(nul, read.lines)};
  if (begins_with(read.text, "#!")) return InputDoubt{Kind::Script, 1};
  if (has_sections(read.result.input)) return std::nullopt;
  if (std::all_of(read.lines.begin(), read.lines.end(), is_blank)) return std::nullopt;
  return InputDoubt{Kind::NoSections};
}

}  // namespace kelp::input::quill::lossless
