#ifndef KELP_INPUT_QUILL_READER_LINE_RECORDS_HPP
#define KELP_INPUT_QUILL_READER_LINE_RECORDS_HPP

#include <string>
#include <string_view>
#include <vector>

#include "kelp/input/quill/lines.hpp"

namespace kelp::input::quill {

/// Returns one blank record for each of `lines`, which split_lines() gave for `text`: where the
/// line is and how it ends. The reader notes the meaning of each line later.
std::vector<LineRecord> locate_lines(std::string_view text, const std::vector<std::string>& lines);

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_READER_LINE_RECORDS_HPP
