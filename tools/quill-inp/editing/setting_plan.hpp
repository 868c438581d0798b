#ifndef KELP_INPUT_QUILL_TOOL_EDITING_SETTING_PLAN_HPP
#define KELP_INPUT_QUILL_TOOL_EDITING_SETTING_PLAN_HPP

#include <vector>

#include "kelp/input/quill/document.hpp"
#include "quill-inp/editing/edit_file.hpp"
#include "quill-inp/keys/key.hpp"

namespace kelp::input::quill::tool {

/// Returns what the settings ask for, one after another, of a document. A command that has a value
/// or parameters and is to be something else loses them, and a parameter that is set without a
/// value loses the one it had: that is a loss of the plan. A command by a number that there is none
/// of is missing, since only the first of a name is created. A new name that looks like one that is
/// there gets a note. Throws UsageError for what cannot be set.
EditPlan plan_settings(const std::vector<Setting>& settings, const QuillInput& input);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_EDITING_SETTING_PLAN_HPP
