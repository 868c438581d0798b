#ifndef KELP_INPUT_QUILL_TOOL_EDITING_CHANGE_REPORT_HPP
#define KELP_INPUT_QUILL_TOOL_EDITING_CHANGE_REPORT_HPP

#include <string>
#include <string_view>
#include <vector>

#include "edit_support/surgical_edit.hpp"
#include "quill-inp/session/reporter.hpp"

namespace kelp::input::quill::tool {

/// What to note of a change.
struct ChangeNote {
  Place place = {};
  std::string message = {};
};

/// Describes every line that an edit of the file `name` changes, adds or removes: one by one with
/// its text, and several of the same kind in a row as one range. Removed lines go by their old
/// numbers, others by their new ones.
std::vector<ChangeNote> describe_changes(const std::string& name, std::string_view old_text,
                                         const edit_support::SurgicalEdit& edit);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_EDITING_CHANGE_REPORT_HPP
