#ifndef KELP_INPUT_QUILL_LANGUAGE_SERVER_EDITING_OFFERED_EDIT_HPP
#define KELP_INPUT_QUILL_LANGUAGE_SERVER_EDITING_OFFERED_EDIT_HPP

#include <string>
#include <vector>

#include "lint/finding.hpp"
#include "lint/source.hpp"

namespace kelp::input::quill::language_server {

/// A correction that the user may choose.
struct OfferedEdit {
  std::string title = {};
  std::vector<lint::ByteEdit> edits = {};
  bool is_safe = false;
};

/// Returns the corrections for a finding: that of the linter, if it has one, and those that only
/// the author of the text can decide on. `source` is the text that the finding is about.
std::vector<OfferedEdit> offered_edits(const lint::Finding& finding, const lint::Source& source);

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_LANGUAGE_SERVER_EDITING_OFFERED_EDIT_HPP
