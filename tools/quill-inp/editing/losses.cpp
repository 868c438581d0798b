#include "quill-inp/editing/losses.hpp"

#include "reader/header_pieces.hpp"

namespace kelp::input::quill::tool {

namespace {

bool is_raw_text(const lossless::ReadText& read, std::size_t index) {
  const LineRecord& line = read.lines[index];
  return line.role == LineRole::PostCommand &&
         read.result.input.post_commands[line.index.value()].kind == PostCommandKind::Raw;
}

}  // namespace

std::optional<LineLoss> find_line_loss(const lossless::ReadText& read, std::size_t index) {
  const LineRecord& line = read.lines[index];
  const std::string_view whole = lossless::content_of(line, read.text);
  const std::string_view content = trimmed_view(whole);
  const bool has_no_path = line.role == LineRole::XyzReference && !line.index;
  if (line.role == LineRole::Dropped || has_no_path)
    return LineLoss{LineLoss::Kind::WholeLine, index + 1, content};
  if (line.role == LineRole::Command && says_more_than_its_command(content))
    return LineLoss{LineLoss::Kind::HeaderText, index + 1, content};
  if (is_raw_text(read, index) && content.data() != whole.data())
    return LineLoss{LineLoss::Kind::Indentation, index + 1, whole};
  return std::nullopt;
}

std::vector<LineLoss> list_line_losses(const lossless::ReadText& read) {
  std::vector<LineLoss> losses;
  std::size_t begin = 0;  // of the blank lines before the current line
  for (std::size_t i = 0; i < read.lines.size(); ++i) {
    if (read.lines[i].role == LineRole::Blank) continue;
    const bool has_blank_lines_before = 0 < begin && begin < i;
    if (has_blank_lines_before && is_raw_text(read, begin - 1) && is_raw_text(read, i))
      losses.push_back({LineLoss::Kind::BlankLines, begin + 1, {}, i});
    if (const auto loss = find_line_loss(read, i)) losses.push_back(*loss);
    begin = i + 1;
  }
  return losses;
}

std::vector<LineLoss> list_header_losses(const lossless::ReadText& read,
                                         const lossless::NewText& edited) {
  std::vector<LineLoss> losses;
  for (const lossless::LineChange& change : edited.changes) {
    if (!change.old_line || read.lines[*change.old_line - 1].role != LineRole::Command) continue;
    if (const auto loss = find_line_loss(read, *change.old_line - 1)) losses.push_back(*loss);
  }
  return losses;
}

std::size_t Losses::count() const {
  const std::size_t of_text = settings.size() + lines.size() + quoting.size();
  if (!proof.explanation) return of_text;
  // The explanation may be about one of the differences, which is not reported twice.
  const std::size_t told = proof.explanation->difference ? 1 : 0;
  return of_text + 1 + proof.comparison.differences.size() - told;
}

}  // namespace kelp::input::quill::tool
