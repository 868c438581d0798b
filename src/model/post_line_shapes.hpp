#ifndef KELP_INPUT_QUILL_MODEL_POST_LINE_SHAPES_HPP
#define KELP_INPUT_QUILL_MODEL_POST_LINE_SHAPES_HPP

#include <array>
#include <cstddef>
#include <limits>
#include <string_view>

#include "kelp/input/quill/document.hpp"

namespace kelp::input::quill {

/// One kind of post-processing line that has a keyword: how it begins and how many tokens the
/// reader accepts, keyword included. The reader and the writer share these rows.
struct PostLineShape {
  std::string_view keyword;
  PostCommandKind kind;
  std::size_t least_tokens;
  std::size_t most_tokens;

  constexpr bool accepts(std::size_t tokens) const {
    return least_tokens <= tokens && tokens <= most_tokens;
  }
};

inline constexpr std::array<PostLineShape, 6> post_line_shapes = {{
    {"C", PostCommandKind::AtomConstraint, 2, 2},
    {"B", PostCommandKind::BondConstraint, 3, 3},
    {"A", PostCommandKind::AngleConstraint, 4, 4},
    {"D", PostCommandKind::DihedralConstraint, 5, 5},
    {"S", PostCommandKind::Scan, 5, 7},
    {"POST", PostCommandKind::PostFile, 2, std::numeric_limits<std::size_t>::max()},
}};

/// Returns the row of an upper-case keyword, or a null pointer for any other word.
constexpr const PostLineShape* find_post_line_shape(std::string_view keyword) {
  for (const PostLineShape& shape : post_line_shapes) {
    if (shape.keyword == keyword) return &shape;
  }
  return nullptr;
}

/// Returns the row of a kind, or a null pointer for raw text and for unknown kinds.
constexpr const PostLineShape* find_post_line_shape(PostCommandKind kind) {
  for (const PostLineShape& shape : post_line_shapes) {
    if (shape.kind == kind) return &shape;
  }
  return nullptr;
}

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_MODEL_POST_LINE_SHAPES_HPP
