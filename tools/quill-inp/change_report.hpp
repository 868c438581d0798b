#ifndef KELP_INPUT_QUILL_TOOL_CHANGE_REPORT_HPP
#define KELP_INPUT_QUILL_TOOL_CHANGE_REPORT_HPP

#include <string>
#include <string_view>

#include "edit_support/surgical_edit.hpp"
#include "quill-inp/session.hpp"

namespace kelp::input::quill::tool {

/// Notes every line that an edit changed, added or removed: one by one with its text, and several
/// of the same kind in a row as one range. Removed lines go by their old numbers, others by their
/// new ones.
void report_changes(Session& session, const std::string& name, std::string_view old_text,
                    const edit_support::SurgicalEdit& edit);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_CHANGE_REPORT_HPP
