#ifndef KELP_INPUT_QUILL_EDIT_SUPPORT_PHYSICAL_LINES_HPP
#define KELP_INPUT_QUILL_EDIT_SUPPORT_PHYSICAL_LINES_HPP

#include <cstddef>
#include <string_view>
#include <vector>

namespace kelp::input::quill::edit_support {

/// Where one line stands in a text, and whether the reader passes over it.
struct PhysicalLine {
  std::size_t offset = 0;
  std::size_t length = 0;
  std::size_t terminator_length = 0;
  bool is_blank = false;
};

/// Returns the lines of `text` as the reader cuts them; they cover every byte.
std::vector<PhysicalLine> find_physical_lines(std::string_view text);

}  // namespace kelp::input::quill::edit_support

#endif  // KELP_INPUT_QUILL_EDIT_SUPPORT_PHYSICAL_LINES_HPP
