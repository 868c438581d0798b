#include "quill-inp/editing/losses.hpp"

#include "reader/header_pieces.hpp"

namespace kelp::input::quill::tool {

std::optional<LineLoss> find_line_loss(const lossless_edit::ReadText& read, std::size_t index) {
  const LineRecord& line = read.lines[index];
  const std::string_view content = trimmed_view(lossless_edit::content_of(line, read.text));
  const bool has_no_path = line.role == LineRole::XyzReference && !line.index;
  if (line.role == LineRole::Dropped || has_no_path)
    return LineLoss{LineLoss::Kind::WholeLine, index + 1, content};
  if (line.role == LineRole::Command && says_more_than_its_command(content))
    return LineLoss{LineLoss::Kind::HeaderText, index + 1, content};
  return std::nullopt;
}

std::size_t Losses::count() const {
  const std::size_t of_text = settings.size() + lines.size() + quoting.size();
  if (!proof.explanation) return of_text;
  // The explanation may be about one of the differences, which is not reported twice.
  const std::size_t told = proof.explanation->difference ? 1 : 0;
  return of_text + 1 + proof.comparison.differences.size() - told;
}

}  // namespace kelp::input::quill::tool
