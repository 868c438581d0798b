#include "editing/edited_lines.hpp"

#include <algorithm>
#include <utility>

#include "kelp/core/text.hpp"

namespace kelp::input::quill::lossless {

namespace {

bool is_blank(std::string_view content) { return core::text::trim(content).empty(); }

std::string_view terminator_of(const LineRecord& line, std::string_view text) {
  return text.substr(line.offset + line.length, line.terminator_length);
}

/// Returns the line end for a new line that has none before it. All lines but the last have one, so
/// that is the first line's.
std::string_view usual_terminator(const ReadText& read) {
  if (read.lines.empty() || read.lines.front().terminator_length == 0) return "\n";
  return terminator_of(read.lines.front(), read.text);
}

/// Builds the new text from its first line to its last.
class Assembly {
 public:
  Assembly(std::string_view usual_terminator, std::size_t text_size, std::size_t change_count)
      : usual_terminator_(usual_terminator) {
    result_.text.reserve(text_size);
    result_.changes.reserve(change_count);
  }

  void keep(std::string_view content, std::string_view terminator) {
    add(content, terminator);
    ++count_;
  }

  void remove(std::size_t old_line) { result_.changes.push_back({old_line + 1, std::nullopt}); }

  void replace(std::size_t old_line, std::string_view content, std::string_view terminator) {
    add(content, terminator);
    report(old_line + 1, content);
  }

  /// A new line has the line end of the line before it, which has one from now on.
  void add_new(std::string_view content) {
    if (has_lines_ && terminator_.empty()) terminator_ = usual_terminator_;
    add(content, has_lines_ ? terminator_ : usual_terminator_);
    report(std::nullopt, content);
  }

  EditedText finish(bool without_last_terminator) {
    // An empty last line keeps its line end: without that it would not be a line.
    const bool ends_in_empty_line = result_.text.empty() || result_.text.back() == '\n';
    if (!without_last_terminator || ends_in_empty_line) result_.text += terminator_;
    return std::move(result_);
  }

 private:
  /// The line end of a line is written when the next line is: the last one may lose its own.
  void add(std::string_view content, std::string_view terminator) {
    result_.text += terminator_;
    result_.text += content;
    terminator_ = terminator;
    has_lines_ = true;
  }

  /// Content with line breaks makes several lines.
  void report(std::optional<std::size_t> old_line, std::string_view content) {
    result_.changes.push_back({old_line, ++count_});
    for (auto i = std::count(content.begin(), content.end(), '\n'); i > 0; --i)
      result_.changes.push_back({std::nullopt, ++count_});
  }

  std::string_view usual_terminator_;
  EditedText result_;
  std::string_view terminator_;  // of the last line
  bool has_lines_ = false;
  std::size_t count_ = 0;
};

}  // namespace

EditedLines::EditedLines(const ReadText& read) : read_(read), is_removed_(read.lines.size()) {}

void EditedLines::replace(std::size_t line, std::string_view content) {
  if (content != content_of(read_.lines[line], read_.text))
    replaced_.push_back(add_content(line, content));
}

void EditedLines::insert(std::size_t gap, std::string_view content) {
  inserted_.push_back(add_content(gap, content));
}

std::size_t EditedLines::begin_section(std::size_t gap) {
  if (!has_text_before(gap) || has_blank_line_before(gap)) return gap;
  if (has_blank_line_after(gap)) return next_line(gap) + 1;
  insert(gap, {});
  return gap;
}

void EditedLines::end_section(std::size_t gap) {
  if (has_text_after(gap) && !has_blank_line_after(gap)) insert(gap, {});
}

EditedLines::NewLine EditedLines::add_content(std::size_t position, std::string_view content) {
  const std::size_t offset = contents_.size();
  contents_ += content;
  return {position, offset, content.size()};
}

std::string_view EditedLines::content_of_new(const NewLine& line) const {
  return std::string_view(contents_).substr(line.offset, line.length);
}

bool EditedLines::has_text_inserted() const {
  return std::any_of(inserted_.begin(), inserted_.end(),
                     [&](const NewLine& line) { return !is_blank(content_of_new(line)); });
}

/// Lines are inserted from the beginning to the end, so all lines inserted earlier come before.
bool EditedLines::has_text_before(std::size_t gap) const {
  if (has_text_inserted()) return true;
  for (std::size_t i = 0; i < gap; ++i) {
    if (!is_removed_[i] && !is_blank_old(i)) return true;
  }
  return false;
}

bool EditedLines::has_text_after(std::size_t gap) const {
  for (std::size_t i = gap; i < read_.lines.size(); ++i) {
    if (!is_removed_[i] && !is_blank_old(i)) return true;
  }
  return false;
}

bool EditedLines::has_blank_line_before(std::size_t gap) const {
  std::size_t kept_end = gap;
  while (kept_end > 0 && is_removed_[kept_end - 1]) --kept_end;
  if (!inserted_.empty() && inserted_.back().position >= kept_end)
    return is_blank(content_of_new(inserted_.back()));
  return kept_end > 0 && is_blank_old(kept_end - 1);
}

/// A blank line without a line end does not count: it would have to change to have lines after it.
bool EditedLines::has_blank_line_after(std::size_t gap) const {
  const std::size_t line = next_line(gap);
  return line != read_.lines.size() && is_blank_old(line) &&
         read_.lines[line].terminator_length != 0;
}

std::size_t EditedLines::next_line(std::size_t gap) const {
  while (gap != read_.lines.size() && is_removed_[gap]) ++gap;
  return gap;
}

std::size_t EditedLines::gap_after_text() const {
  std::size_t gap = read_.lines.size();
  while (gap > 0 && is_blank_old(gap - 1)) --gap;
  for (const NewLine& line : inserted_) {
    if (!is_blank(content_of_new(line))) gap = std::max(gap, line.position);
  }
  return gap;
}

EditedText EditedLines::finish() {
  const auto is_before = [](const NewLine& left, const NewLine& right) {
    return left.position < right.position;
  };
  std::sort(replaced_.begin(), replaced_.end(), is_before);
  const auto removed_count =
      static_cast<std::size_t>(std::count(is_removed_.begin(), is_removed_.end(), true));
  const std::string_view terminator = usual_terminator(read_);
  Assembly assembly(terminator,
                    read_.text.size() + contents_.size() + inserted_.size() * terminator.size(),
                    replaced_.size() + inserted_.size() + removed_count);
  auto replacement = replaced_.begin();
  auto insertion = inserted_.begin();
  for (std::size_t i = 0; i <= read_.lines.size(); ++i) {
    for (; insertion != inserted_.end() && insertion->position == i; ++insertion)
      assembly.add_new(content_of_new(*insertion));
    if (i == read_.lines.size()) break;
    const LineRecord& line = read_.lines[i];
    const bool is_replaced = replacement != replaced_.end() && replacement->position == i;
    if (is_removed_[i]) {
      assembly.remove(i);
    } else if (is_replaced) {
      assembly.replace(i, content_of_new(*replacement), terminator_of(line, read_.text));
    } else {
      assembly.keep(content_of(line, read_.text), terminator_of(line, read_.text));
    }
    if (is_replaced) ++replacement;
  }
  const bool had_last_terminator = read_.lines.empty() || read_.lines.back().terminator_length != 0;
  return assembly.finish(!had_last_terminator);
}

}  // namespace kelp::input::quill::lossless
