#include "quill-inp/text/unified_diff.hpp"

#include <algorithm>
#include <cstddef>
#include <vector>

#include "quill-inp/text/colors.hpp"
#include "quill-inp/text/line_matching.hpp"
#include "quill-inp/text/terminal_text.hpp"

namespace kelp::input::quill::tool {

namespace {

using Lines = std::vector<std::string_view>;

constexpr std::size_t context = 3;

using Span = LineChange;

void append_line(std::string& out, char sign, std::string_view line) {
  out += sign;
  out += line;
  if (line.empty() || line.back() != '\n') out += "\n\\ No newline at end of file\n";
}

void append_lines(std::string& out, char sign, const Lines& lines, std::size_t begin,
                  std::size_t end) {
  for (std::size_t i = begin; i < end; ++i) append_line(out, sign, lines[i]);
}

/// "begin,count", where a count of one is left out; without lines, `begin` is the line before them.
std::string position(std::size_t begin, std::size_t end) {
  const std::size_t count = end - begin;
  const std::string first = std::to_string(count == 0 ? begin : begin + 1);
  return count == 1 ? first : first + "," + std::to_string(count);
}

/// Appends the changes from `first` to before `last`, which are close enough to share one hunk.
void append_hunk(std::string& out, const Lines& old_lines, const Lines& new_lines,
                 const Span* first, const Span* last) {
  const std::size_t before = std::min(context, first->old_begin);
  const std::size_t after = std::min(context, old_lines.size() - (last - 1)->old_end);
  out += "@@ -" + position(first->old_begin - before, (last - 1)->old_end + after);
  out += " +" + position(first->new_begin - before, (last - 1)->new_end + after) + " @@\n";
  std::size_t old_at = first->old_begin - before;
  for (const Span* change = first; change != last; ++change) {
    append_lines(out, ' ', old_lines, old_at, change->old_begin);
    append_lines(out, '-', old_lines, change->old_begin, change->old_end);
    append_lines(out, '+', new_lines, change->new_begin, change->new_end);
    old_at = change->old_end;
  }
  append_lines(out, ' ', old_lines, old_at, old_at + after);
}

std::size_t size_of(const Lines& lines, std::size_t begin, std::size_t end) {
  std::size_t size = 0;
  for (std::size_t i = begin; i < end; ++i) size += lines[i].size() + 1;
  return size;
}

/// Returns about how long the difference is, so that its memory does not have to grow: that of many
/// large changes is as long as both texts.
std::size_t size_of(const std::vector<Span>& changes, const Lines& old_lines,
                    const Lines& new_lines) {
  std::size_t size = 0;
  for (const Span& change : changes) {
    const std::size_t before = std::min(context, change.old_begin);
    const std::size_t after = std::min(context, old_lines.size() - change.old_end);
    size += size_of(old_lines, change.old_begin - before, change.old_end + after) +
            size_of(new_lines, change.new_begin, change.new_end);
  }
  return size;
}

/// Without the tab, a name with a blank in it would end at the blank.
std::string header_line(std::string_view sign, std::string_view name) {
  std::string line(sign);
  line += shown_on_one_line(name);
  if (name.find(' ') != std::string_view::npos) line += '\t';
  line += '\n';
  return line;
}

bool is_changed(std::string_view line) { return line.front() == '-' || line.front() == '+'; }

/// Whether a line belongs to the changed lines around it: it is one of them, or says how the last
/// one ends.
bool is_of_change(std::string_view line) { return is_changed(line) || line.front() == '\\'; }

constexpr std::string_view dos_end = "\r\n";

bool has_dos_end(std::string_view line) {
  return line.size() >= dos_end.size() && line.substr(line.size() - dos_end.size()) == dos_end;
}

/// Returns whether some of the changed lines end in "\r\n" and some do not.
bool has_several_line_ends(const std::string_view* first, const std::string_view* last) {
  const auto ends_otherwise = [&](std::string_view line) {
    return is_changed(line) && has_dos_end(line) != has_dos_end(*first);
  };
  return std::any_of(first, last, ends_otherwise);
}

void append_shown(std::string& out, std::string_view line, bool shows_line_ends) {
  if (shows_line_ends && has_dos_end(line)) {
    out += shown_as_lines(line.substr(0, line.size() - dos_end.size())) + "\\r\n";
  } else {
    out += shown_as_lines(line);
  }
}

/// Returns the first line after those that are changed together with `first`.
const std::string_view* end_of_change(const std::string_view* first, const std::string_view* end) {
  return std::find_if_not(first, end, is_of_change);
}

std::string with_unix_ends(std::string_view text) {
  std::string result;
  for (const std::string_view line : lines_with_ends(text)) {
    const bool has_cr = has_dos_end(line);
    result += line.substr(0, line.size() - (has_cr ? dos_end.size() : 0));
    if (has_cr) result += '\n';
  }
  return result;
}

/// Returns the colour of a line that begins with `sign`, or nothing for a line of context.
std::string_view color_of(char sign) {
  switch (sign) {
    case '-':
      return removed_color;
    case '+':
      return added_color;
    case '@':
      return label_color;
    default:
      return {};
  }
}

}  // namespace

std::string unified_diff(std::string_view name, std::string_view old_text,
                         std::string_view new_text) {
  const Lines old_lines = lines_with_ends(old_text);
  const Lines new_lines = lines_with_ends(new_text);
  const std::vector<Span> changes = find_line_changes(old_lines, new_lines);
  std::string out;
  if (changes.empty()) return out;
  out += header_line("--- ", name) + header_line("+++ ", name);
  out.reserve(out.size() + size_of(changes, old_lines, new_lines));
  const Span* const end = changes.data() + changes.size();
  for (const Span* first = changes.data(); first != end;) {
    const Span* last = first + 1;
    while (last != end && last->old_begin - (last - 1)->old_end <= 2 * context) ++last;
    append_hunk(out, old_lines, new_lines, first, last);
    first = last;
  }
  return out;
}

std::string shown_diff(std::string_view diff) {
  const Lines lines = lines_with_ends(diff);
  const std::string_view* const end = lines.data() + lines.size();
  std::string out;
  for (const std::string_view* line = lines.data(); line != end;) {
    if (!is_changed(*line)) {
      append_shown(out, *line++, false);
      continue;
    }
    const std::string_view* const last = end_of_change(line, end);
    const bool shows_line_ends = has_several_line_ends(line, last);
    for (; line != last; ++line) append_shown(out, *line, shows_line_ends);
  }
  return out;
}

std::string colored_diff(std::string_view diff) {
  std::string out;
  for (const std::string_view line : lines_with_ends(diff)) {
    const std::string_view color = color_of(line.front());
    if (color.empty()) {
      out += line;
      continue;
    }
    out += colored(line.substr(0, line.size() - 1), color, true) + "\n";
  }
  return out;
}

bool differ_only_in_line_ends(std::string_view old_text, std::string_view new_text) {
  return old_text != new_text && with_unix_ends(old_text) == with_unix_ends(new_text);
}

}  // namespace kelp::input::quill::tool
