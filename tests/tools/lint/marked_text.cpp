#include "tools/lint/marked_text.hpp"

#include <algorithm>
#include <regex>

#include "lint/wording.hpp"

namespace kelp::input::quill::lint {

namespace {

/// The lines of a text with their line ends.
std::vector<std::string> lines_with_ends(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size() - 1) + 1;
    lines.emplace_back(text.substr(0, end));
    text.remove_prefix(end);
  }
  return lines;
}

std::string mark_of(const Finding& finding, const TextPlace& place, std::size_t line_length) {
  const std::size_t left = line_length + 1 - std::min(line_length, place.column);
  const std::size_t carets = std::clamp<std::size_t>(finding.range.length, 1, left);
  return std::string(place.column - 1, ' ') +
         (finding.range.length == 0 ? "<" : std::string(carets, '^')) + " " +
         std::string(finding.code) + " " + words_of(finding).message + "\n";
}

}  // namespace

std::string without_marks(std::string_view marked) {
  static const std::regex mark(" *(<|\\^+) QL[0-9]{3} [^]*");
  std::string text;
  for (const std::string& line : lines_with_ends(marked)) {
    if (!std::regex_match(line, mark)) text += line;
  }
  return text;
}

std::string with_marks(std::string_view text, const Findings& findings) {
  const std::vector<LineRecord> lines = parse_lines(text).lines;
  std::string marked;
  auto finding = findings.begin();
  const auto add_marks = [&](std::size_t number, std::size_t length) {
    for (; finding != findings.end(); ++finding) {
      const TextPlace place = place_of(finding->range.offset, lines);
      if (place.line != number) return;
      marked += mark_of(*finding, place, length);
    }
  };
  std::size_t number = 0;
  for (const std::string& line : lines_with_ends(text)) {
    marked += line;
    ++number;
    if (finding != findings.end() && place_of(finding->range.offset, lines).line == number &&
        line.back() != '\n')
      marked += '\n';
    add_marks(number, lines[number - 1].length);
  }
  add_marks(1, 0);
  return marked;
}

std::string marked_anew(std::string_view marked, const Options& options) {
  const std::string text = without_marks(marked);
  return with_marks(text, find_all(lossless::read_text(text), options));
}

}  // namespace kelp::input::quill::lint
