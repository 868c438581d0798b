#ifndef KELP_INPUT_QUILL_TESTS_INTERFACE_WRITTEN_PIECE_HPP
#define KELP_INPUT_QUILL_TESTS_INTERFACE_WRITTEN_PIECE_HPP

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <ostream>
#include <string>
#include <string_view>

// A piece of a document and its text, as a row of a table; and the numbers at the ends of ranges.

namespace kelp::input::quill {

inline constexpr std::int32_t least = std::numeric_limits<std::int32_t>::min();
inline constexpr std::int32_t greatest = std::numeric_limits<std::int32_t>::max();
inline constexpr double infinity = std::numeric_limits<double>::infinity();
inline constexpr double nan = std::numeric_limits<double>::quiet_NaN();

template <typename Piece>
struct PieceRow {
  const char* name;
  Piece piece;
  std::string_view text;
};

template <typename Piece>
void PrintTo(const PieceRow<Piece>& row, std::ostream* out) {
  *out << row.name;
}

template <typename Piece>
std::string name_of_row(const testing::TestParamInfo<PieceRow<Piece>>& row) {
  return row.param.name;
}

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_TESTS_INTERFACE_WRITTEN_PIECE_HPP
