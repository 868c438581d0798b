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

void TrackedDocument::replace_command(std::size_t index, HeaderCommand command) {
  QuillInput changed = static_cast<InputEditor&&>(*this).document();
  changed.commands[index] = std::move(command);
  static_cast<InputEditor&>(*this) = InputEditor(std::move(changed));
}

void TrackedDocument::remove_post_commands(std::vector<bool> is_removed) {
  QuillInput changed = static_cast<InputEditor&&>(*this).document();
  std::vector<PostCommand>& commands = changed.post_commands;
  std::size_t kept = 0;
  for (std::size_t i = 0; i < commands.size(); ++i) {
    if (is_removed[i]) continue;
    if (kept != i) commands[kept] = std::move(commands[i]);
    ++kept;
  }
  commands.erase(commands.begin() + static_cast<std::ptrdiff_t>(kept), commands.end());
  static_cast<InputEditor&>(*this) = InputEditor(std::move(changed));
  is_post_command_removed_ = std::move(is_removed);
}

bool TrackedDocument::is_post_command_removed(std::size_t index) const {
  return index < is_post_command_removed_.size() && is_post_command_removed_[index];
}

}  // namespace kelp::input::quill::lossless
