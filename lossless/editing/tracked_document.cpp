#include "kelp/input/quill/lossless/tracked_document.hpp"

#include <string>
#include <utility>

namespace kelp::input::quill::lossless {

TrackedDocument::TrackedDocument(QuillInput input) : InputEditor(std::move(input)) {
  for (std::size_t i = 0; i < document().commands.size(); ++i) origins_.emplace_back(i);
}

bool TrackedDocument::remove_command(std::string_view name,
                                     std::optional<std::uint64_t> occurrence) {
  const std::string canonical_name = normalize_command_name(name);
  const std::vector<std::optional<std::size_t>> all = origins();
  std::vector<std::optional<std::size_t>> kept;
  std::uint64_t matches = 0;
  for (std::size_t i = 0; i < all.size(); ++i) {
    const bool is_match = normalize_command_name(document().commands[i].name) == canonical_name;
    if (!is_match || (occurrence && *occurrence != matches)) kept.push_back(all[i]);
    if (is_match) ++matches;
  }
  const bool was_there = InputEditor::remove_command(name, occurrence);
  origins_ = std::move(kept);
  return was_there;
}

std::vector<std::optional<std::size_t>> TrackedDocument::origins() const {
  std::vector<std::optional<std::size_t>> all = origins_;
  all.resize(document().commands.size());
  return all;
}

}  // namespace kelp::input::quill::lossless
