#ifndef KELP_INPUT_QUILL_TOOL_EDITING_EDIT_REPORT_HPP
#define KELP_INPUT_QUILL_TOOL_EDITING_EDIT_REPORT_HPP

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "quill-inp/editing/losses.hpp"
#include "quill-inp/keys/answer.hpp"

namespace kelp::input::quill::tool {

/// Something to note about an edit.
struct EditNote {
  enum class Kind {
    NewName,             // `name` names nothing yet and is like `similar`
    OtherParameterLeft,  // another parameter `name` of `command` is left
  };

  Kind kind = Kind::NewName;
  std::string name = {};
  std::string similar = {};
  std::optional<std::size_t> command = std::nullopt;  // into the commands that were read
};

/// What there is to say about an edit that was made to a document: what the document says no more
/// without having been asked about it, what the edit is about and is not there, and notes.
struct EditReport {
  std::vector<SettingLoss> losses = {};
  std::vector<MissingAnswer> missing = {};
  std::vector<EditNote> notes = {};
};

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_EDITING_EDIT_REPORT_HPP
