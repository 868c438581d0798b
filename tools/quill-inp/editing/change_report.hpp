#ifndef KELP_INPUT_QUILL_TOOL_EDITING_CHANGE_REPORT_HPP
#define KELP_INPUT_QUILL_TOOL_EDITING_CHANGE_REPORT_HPP

#include <string>
#include <vector>

#include "kelp/input/quill/lossless/surgical_edit.hpp"
#include "quill-inp/session/input_source.hpp"
#include "quill-inp/session/reporter.hpp"

namespace kelp::input::quill::tool {

/// A note about a change.
struct ChangeNote {
  Place place = {};
  std::string message = {};
};

/// Describes every line that an edit of an input changes, adds or removes: a single line with its
/// text, and several lines of the same kind in a row as one range. Removed lines have their old
/// numbers, all others their new ones.
std::vector<ChangeNote> describe_changes(const ReadInput& input, const lossless::NewText& edited);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_EDITING_CHANGE_REPORT_HPP
