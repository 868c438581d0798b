#ifndef KELP_INPUT_QUILL_TOOL_EDITING_APPLY_SETTINGS_HPP
#define KELP_INPUT_QUILL_TOOL_EDITING_APPLY_SETTINGS_HPP

#include <vector>

#include "lossless_edit/tracked_document.hpp"
#include "quill-inp/editing/edit_report.hpp"
#include "quill-inp/keys/key.hpp"

namespace kelp::input::quill::tool {

/// Makes the settings, one after another. A command that has a value or parameters and becomes
/// something else loses them, and a parameter that is set without a value loses the one it had: the
/// report tells that. It also tells of a command by a number that there are not so many of, which
/// is not created, and of a new name that is like one that is there. Throws UsageError for what
/// cannot be set.
EditReport apply_settings(const std::vector<Setting>& settings,
                          lossless_edit::TrackedDocument& document);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_EDITING_APPLY_SETTINGS_HPP
