#include "editing/edited_lines.hpp"

#include <algorithm>
#include <utility>

#include "kelp/core/text.hpp"

namespace kelp::input::quill::lossless {

namespace {

bool is_blank(std::string_view content) { return core::text::trim(content).empty(); }

bool holds_text(const std::vector<std::string>& contents) {
  return !std::all_of(contents.begin(), contents.end(), is_blank);
}

bool ends_in_empty_line(std::string_view content) {
  return content.empty() || content.back() == '\n';
}

/// Builds the new text from its first line to its last.
class Assembly {
 public:
  explicit Assembly(std::string_view usual_terminator) : usual_terminator_(usual_terminator) {}

  void keep(std::string_view content, std::string_view terminator) {
    lines_.push_back({content, terminator});
    ++count_;
  }

  void remove(std::size_t old_line) { changes_.push_back({old_line + 1, std::nullopt}); }

  void replace(std::size_t old_line, std::string_view content, std::string_view terminator) {
    lines_.push_back({content, terminator});
    report(old_line + 1, content);
  }

  void add_new(std::string_view content) {
    if (!lines_.empty() && lines_.back().terminator.empty())
      lines_.back().terminator = usual_terminator_;
    lines_.push_back({content, lines_.empty() ? usual_terminator_ : lines_.back().terminator});
    report(std::nullopt, content);
  }

  EditedText finish(bool without_last_terminator) {
    // An empty last line keeps its line end: without that it would not be a line.
    if (without_last_terminator && !lines_.empty() && !ends_in_empty_line(lines_.back().content))
      lines_.back().terminator = {};
    EditedText result;
    for (const Line& line : lines_) {
      result.text += line.content;
      result.text += line.terminator;
    }
    result.changes = std::move(changes_);
    return result;
  }

 private:
  struct Line {
    std::string_view content;
    std::string_view terminator;
  };

  /// Content with line breaks makes several lines.
  void report(std::optional<std::size_t> old_line, std::string_view content) {
    changes_.push_back({old_line, ++count_});
    for (auto i = std::count(content.begin(), content.end(), '\n'); i > 0; --i)
      changes_.push_back({std::nullopt, ++count_});
  }

  std::string_view usual_terminator_;
  std::vector<Line> lines_;
  std::size_t count_ = 0;
  std::vector<LineChange> changes_;
};

}  // namespace

EditedLines::EditedLines(const ReadText& read) : gaps_(read.lines.size() + 1) {
  const std::string_view text = read.text;
  lines_.reserve(read.lines.size());
  for (const LineRecord& line : read.lines) {
    lines_.push_back({content_of(line, text),
                      text.substr(line.offset + line.length, line.terminator_length), std::nullopt,
                      line.role == LineRole::Blank});
  }
  if (lines_.empty()) return;
  ends_without_terminator_ = lines_.back().terminator.empty();
  // All lines but the last have a line end, so new lines can take that of the first one.
  if (!lines_.front().terminator.empty()) usual_terminator_ = lines_.front().terminator;
}

void EditedLines::replace(std::size_t line, std::string content) {
  lines_[line].replacement = std::move(content);
}

void EditedLines::remove(std::size_t line) { lines_[line].is_removed = true; }

void EditedLines::insert(std::size_t gap, std::string content) {
  gaps_[gap].push_back(std::move(content));
}

void EditedLines::insert_section(std::size_t gap, std::vector<std::string> contents) {
  const bool has_neighbour_before = has_text_before(gap);
  if (has_neighbour_before && !has_blank_line_before(gap)) {
    if (has_blank_line_after(gap)) {
      gap = next_line(gap) + 1;
    } else {
      insert(gap, {});
    }
  }
  for (std::string& content : contents) insert(gap, std::move(content));
  if (has_text_after(gap) && !has_blank_line_after(gap)) insert(gap, {});
}

/// Lines that were already put into the gap count as before it.
bool EditedLines::has_text_before(std::size_t gap) const {
  if (holds_text(gaps_[gap])) return true;
  for (std::size_t i = 0; i < gap; ++i) {
    if (holds_text(gaps_[i]) || (!lines_[i].is_removed && !lines_[i].is_blank)) return true;
  }
  return false;
}

bool EditedLines::has_text_after(std::size_t gap) const {
  for (std::size_t i = gap; i < lines_.size(); ++i) {
    if (holds_text(gaps_[i + 1]) || (!lines_[i].is_removed && !lines_[i].is_blank)) return true;
  }
  return false;
}

bool EditedLines::has_blank_line_before(std::size_t gap) const {
  for (std::size_t i = gap + 1; i-- > 0;) {
    if (!gaps_[i].empty()) return is_blank(gaps_[i].back());
    if (i > 0 && !lines_[i - 1].is_removed) return lines_[i - 1].is_blank;
  }
  return false;
}

/// A blank line without a line end does not count: it would have to change to have lines after it.
bool EditedLines::has_blank_line_after(std::size_t gap) const {
  const std::size_t line = next_line(gap);
  return line != lines_.size() && lines_[line].is_blank && !lines_[line].terminator.empty();
}

std::size_t EditedLines::next_line(std::size_t gap) const {
  while (gap != lines_.size() && lines_[gap].is_removed) ++gap;
  return gap;
}

std::size_t EditedLines::gap_after_text() const {
  for (std::size_t gap = lines_.size(); gap > 0; --gap) {
    if (holds_text(gaps_[gap]) || !lines_[gap - 1].is_blank) return gap;
  }
  return 0;
}

EditedText EditedLines::finish() const {
  Assembly assembly(usual_terminator_);
  for (std::size_t i = 0; i <= lines_.size(); ++i) {
    for (const std::string& content : gaps_[i]) assembly.add_new(content);
    if (i == lines_.size()) break;
    const OldLine& line = lines_[i];
    if (line.is_removed) {
      assembly.remove(i);
    } else if (line.replacement && *line.replacement != line.content) {
      assembly.replace(i, *line.replacement, line.terminator);
    } else {
      assembly.keep(line.content, line.terminator);
    }
  }
  return assembly.finish(ends_without_terminator_);
}

}  // namespace kelp::input::quill::lossless
