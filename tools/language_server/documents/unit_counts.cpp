#include "language_server/documents/unit_counts.hpp"

namespace kelp::input::quill::language_server {

namespace {

// Longer than most lines, which need no marks.
constexpr std::size_t step = 256;

}  // namespace

UnitCounts::UnitCounts(std::string_view text, PositionEncoding encoding) : encoding_(encoding) {
  if (encoding == PositionEncoding::Utf8) return;
  marks_.reserve(text.size() / step + 1);
  std::size_t count = 0;
  for (std::size_t offset = 0; offset <= text.size(); offset += step) {
    marks_.push_back(count);
    count += count_units(text.substr(offset, step), encoding);
  }
}

std::size_t UnitCounts::before(std::size_t offset, std::string_view text) const {
  const std::size_t mark = offset / step;
  return marks_[mark] + count_units(text.substr(mark * step, offset % step), encoding_);
}

std::size_t UnitCounts::between(std::size_t begin, std::size_t end, std::string_view text) const {
  const bool is_near = end - begin < step;
  if (is_near || encoding_ == PositionEncoding::Utf8)
    return count_units(text.substr(begin, end - begin), encoding_);
  return before(end, text) - before(begin, text);
}

}  // namespace kelp::input::quill::language_server
