#include "quill-inp/findings/text_form.hpp"

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "lint/lint.hpp"
#include "lint/wording.hpp"
#include "quill-inp/findings/more_findings.hpp"
#include "quill-inp/text/colors.hpp"
#include "quill-inp/text/terminal_text.hpp"

namespace kelp::input::quill::tool {

namespace {

constexpr std::string_view indent = "    ";
constexpr std::size_t most_before = 80;  // bytes of a long line that are shown before the place
constexpr std::size_t most_after = 80;   // and from its beginning on

std::string_view color_of(lint::Severity severity) {
  if (severity == lint::Severity::Error) return error_color;
  return severity == lint::Severity::Warning ? warning_color : note_color;
}

/// Whether a byte continues a character of UTF-8.
bool continues_character(char c) { return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U; }

/// Returns how many characters a shown text has.
std::size_t count_characters(std::string_view shown) {
  return static_cast<std::size_t>(
      std::count_if(shown.begin(), shown.end(), [](char c) { return !continues_character(c); }));
}

/// The part of a line that is shown: some bytes before the place, the place, and some after it.
struct Excerpt {
  std::string before;
  std::string place;
  std::string after;
};

Excerpt excerpt_of(std::string_view line, std::size_t column, std::size_t length) {
  const std::size_t at = std::min(column - 1, line.size());
  std::size_t first = at > most_before ? at - most_before : 0;
  while (first < at && continues_character(line[first])) ++first;
  std::size_t last = std::min(line.size(), at + most_after);
  while (last < line.size() && continues_character(line[last])) ++last;
  const std::size_t end = std::min(at + length, last);
  return {(first > 0 ? "..." : "") + shown_on_one_line(line.substr(first, at - first)),
          shown_on_one_line(line.substr(at, end - at)),
          shown_on_one_line(line.substr(end, last - end)) + (last < line.size() ? "..." : "")};
}

std::string head_of(const FileReport& report, const lint::Finding& finding,
                    const lint::TextPlace& place, const std::string& message, bool is_colored) {
  const lint::Severity severity = lint::find_rule(finding.code)->severity;
  std::string text = shown_on_one_line(report.name) + ":" + std::to_string(place.line) + ":" +
                     std::to_string(place.column) + ": ";
  text += colored(std::string(lint::name_of(severity)) + ":", color_of(severity), is_colored);
  return text + " " + shown_on_one_line(message) + " [" + std::string(finding.code) + "]\n";
}

std::string marked_line(const FileReport& report, const lint::Finding& finding,
                        const lint::TextPlace& place) {
  const LineRecord& record = report.read.lines[place.line - 1];
  const std::string_view line = lossless::content_of(record, report.read.text);
  const Excerpt excerpt = excerpt_of(line, place.column, finding.range.length);
  const std::string shown = excerpt.before + excerpt.place + excerpt.after;
  if (shown.empty()) return {};
  const std::size_t carets = std::max<std::size_t>(1, count_characters(excerpt.place));
  return std::string(indent) + shown + "\n" + std::string(indent) +
         std::string(count_characters(excerpt.before), ' ') + std::string(carets, '^') + "\n";
}

}  // namespace

std::string text_form(const FileReport& report, bool is_colored) {
  std::string text;
  for (const lint::Finding& finding : report.findings) {
    const lint::TextPlace place = lint::place_of(finding.range.offset, report.read.lines);
    const lint::FindingWords words = lint::words_of(finding);
    text += head_of(report, finding, place, words.message, is_colored);
    // A finding about what is missing has no bytes to show.
    if (finding.range.end() > 0) text += marked_line(report, finding, place);
    text += std::string(indent) + std::string(lint::advice_label) +
            shown_on_one_line(words.advice) + "\n";
  }
  for (const auto& [code, count] : report.more)
    text += shown_on_one_line(report.name) + ": " + words_of_more(code, count) + "\n";
  return text;
}

}  // namespace kelp::input::quill::tool
