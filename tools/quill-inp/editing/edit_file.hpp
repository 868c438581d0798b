#ifndef KELP_INPUT_QUILL_TOOL_EDITING_EDIT_FILE_HPP
#define KELP_INPUT_QUILL_TOOL_EDITING_EDIT_FILE_HPP

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "edit_support/surgical_edit.hpp"
#include "quill-inp/editing/delivery.hpp"
#include "quill-inp/editing/loss_policy.hpp"

namespace kelp::input::quill::tool {

/// Something to say of an edit: of the input, or of one of its commands as it was read.
struct PlanNote {
  std::string text = {};
  std::optional<std::size_t> command = std::nullopt;  // into QuillInput::commands
};

/// What to do to an input, once it was read: the edits, what the input says now and would not say
/// any more without having been asked about it, what the edits are about and is not there, and what
/// else there is to say about them.
struct EditPlan {
  std::vector<edit_support::Edit> edits = {};
  std::vector<std::string> losses = {};
  std::vector<std::string> missing = {};
  std::vector<PlanNote> notes = {};
};

/// Reads an input, makes a plan for it, carries all of the plan out or nothing, and delivers the
/// new text. The answer is "no" when something is missing. Throws Trouble and UsageError.
ExitCode edit_file(Session& session, const std::string& argument,
                   const std::function<EditPlan(const QuillInput&)>& make_plan,
                   const Delivery& delivery, const LossPolicy& policy);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_EDITING_EDIT_FILE_HPP
