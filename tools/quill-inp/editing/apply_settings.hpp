#ifndef KELP_INPUT_QUILL_TOOL_EDITING_APPLY_SETTINGS_HPP
#define KELP_INPUT_QUILL_TOOL_EDITING_APPLY_SETTINGS_HPP

#include <vector>

#include "kelp/input/quill/lossless/tracked_document.hpp"
#include "quill-inp/editing/edit_report.hpp"
#include "quill-inp/keys/key.hpp"

namespace kelp::input::quill::tool {

/// Whether names that the document does not have are created.
enum class NewNames { Created, Missing };

/// Makes the settings, one after another. The report lists what is lost: a command that becomes
/// something else loses its value or parameters, and a parameter that is set without a value loses
/// its old one. The report also lists commands with a number that is too large, which are not
/// created, and new names that are similar to an existing one. Throws UsageError for a value
/// that a key cannot have. With `NewNames::Missing`, nothing is created, and what would be is
/// listed as missing.
EditReport apply_settings(const std::vector<Setting>& settings, lossless::TrackedDocument& document,
                          NewNames new_names);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_EDITING_APPLY_SETTINGS_HPP
