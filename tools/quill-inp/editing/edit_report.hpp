#ifndef KELP_INPUT_QUILL_TOOL_EDITING_EDIT_REPORT_HPP
#define KELP_INPUT_QUILL_TOOL_EDITING_EDIT_REPORT_HPP

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "quill-inp/editing/losses.hpp"
#include "quill-inp/keys/ambiguity.hpp"
#include "quill-inp/keys/answer.hpp"

namespace kelp::input::quill::tool {

/// Something to note about an edit.
struct EditNote {
  enum class Kind {
    NewName,             // `name` is new and similar to the existing name `similar`
    OtherParameterLeft,  // another parameter `name` of `command` is still there
  };

  Kind kind = Kind::NewName;
  std::string name = {};
  std::string similar = {};
  std::optional<std::size_t> command = std::nullopt;  // into the commands that were read
};

/// What to report about an edit of a document: what was lost although nobody asked for it, what the
/// edit needs and the document does not have, notes, and keys that fit several parts of the
/// document.
struct EditReport {
  std::vector<SettingLoss> losses = {};
  std::vector<MissingAnswer> missing = {};
  std::vector<EditNote> notes = {};
  std::vector<Ambiguity> ambiguities = {};
};

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_EDITING_EDIT_REPORT_HPP
