#include "quill-inp/formats/xyz_file.hpp"

#include <algorithm>
#include <cstddef>
#include <string>

#include "kelp/chem/elements.hpp"
#include "kelp/core/text.hpp"
#include "quill-inp/process/trouble.hpp"
#include "quill-inp/text/counted.hpp"

namespace kelp::input::quill::tool {

namespace text = core::text;

namespace {

[[noreturn]] void throw_at(std::size_t line, const std::string& message) {
  throw Trouble(message, line);
}

bool is_letter(char c) { return ('A' <= c && c <= 'Z') || ('a' <= c && c <= 'z'); }

AtomRecord read_atom(const std::string& line, std::size_t number) {
  const std::vector<std::string> words = text::split_whitespace(line);
  AtomRecord atom;
  const bool is_atom =
      words.size() >= 4 && std::all_of(words[0].begin(), words[0].end(), is_letter) &&
      text::try_parse_double(words[1], atom.x) && text::try_parse_double(words[2], atom.y) &&
      text::try_parse_double(words[3], atom.z);
  if (!is_atom) throw_at(number, "expected an atom, a symbol and three coordinates");
  atom.symbol = chem::elements::normalize_symbol(words[0]);
  return atom;
}

/// A structure in a file: the line, counted from 0, with the number of its atoms, and that number.
struct Frame {
  std::size_t begin = 0;
  std::size_t count = 0;

  std::size_t end() const { return begin + xyz_lines_before_atoms + count; }
};

bool is_blank(const std::string& line) { return text::trim(line).empty(); }

/// Returns the structure that begins at a line. Throws Trouble if it is cut off.
Frame find_frame(const std::vector<std::string>& lines, std::size_t begin) {
  const auto count = begin < lines.size() ? find_xyz_count(lines[begin]) : std::nullopt;
  if (!count) {
    throw_at(begin + 1, begin == 0 ? "an XYZ file begins with the number of its atoms, 1 or more"
                                   : "the next structure does not begin with the number of its "
                                     "atoms, 1 or more");
  }
  const Frame frame{begin, *count};
  if (lines.size() < frame.end()) {
    const std::size_t first = begin + xyz_lines_before_atoms;
    const std::size_t found = std::max(lines.size(), first) - first;
    throw Trouble("has " + counted(found, "atom") + " instead of " + std::to_string(*count),
                  begin == 0 ? std::nullopt : std::optional(begin + 1));
  }
  return frame;
}

/// Returns the first line at or after `line` that is not blank.
std::size_t skip_blank_lines(const std::vector<std::string>& lines, std::size_t line) {
  while (line < lines.size() && is_blank(lines[line])) ++line;
  return line;
}

XyzStructure read_frame(const std::vector<std::string>& lines, const Frame& frame) {
  XyzStructure structure;
  structure.first_line = frame.begin + xyz_lines_before_atoms + 1;
  structure.atoms.reserve(frame.count);
  for (std::size_t i = frame.end() - frame.count; i < frame.end(); ++i)
    structure.atoms.push_back(read_atom(lines[i], i + 1));
  return structure;
}

/// Returns one of several structures, counted from 1, or with a negative number from the end.
Frame choose_frame(const std::vector<std::string>& lines, int number) {
  std::vector<Frame> frames;
  const bool counts_from_end = number < 0;
  const auto wanted = static_cast<std::size_t>(counts_from_end ? -(number + 1) : number - 1);
  for (std::size_t line = 0; line < lines.size(); line = skip_blank_lines(lines, line)) {
    frames.push_back(find_frame(lines, line));
    if (!counts_from_end && frames.size() > wanted) return frames.back();
    line = frames.back().end();
  }
  if (wanted >= frames.size()) {
    throw Trouble("has no structure " + std::to_string(number) + ": there " +
                  (frames.size() == 1 ? "is" : "are") + " only " +
                  counted(frames.size(), "structure"));
  }
  return frames[frames.size() - 1 - wanted];
}

void require_end(const std::vector<std::string>& lines, const Frame& frame) {
  const std::size_t rest = skip_blank_lines(lines, frame.end());
  if (rest < lines.size())
    throw_at(rest + 1,
             "more text after the last atom; use --frame N for one of several structures");
}

}  // namespace

std::optional<std::size_t> find_xyz_count(std::string_view content) {
  const std::string first_line = text::trim(content.substr(0, content.find('\n')));
  int count = 0;
  if (!text::try_parse_int(first_line, count) || count < 1) return std::nullopt;
  return static_cast<std::size_t>(count);
}

XyzStructure read_xyz_structure(std::string_view content, std::optional<int> frame_number) {
  const std::vector<std::string> lines = text::split_lines(content);
  const Frame frame = frame_number ? choose_frame(lines, *frame_number) : find_frame(lines, 0);
  XyzStructure structure = read_frame(lines, frame);
  if (!frame_number) require_end(lines, frame);
  return structure;
}

std::vector<XyzStructure> read_xyz_structures(std::string_view content) {
  const std::vector<std::string> lines = text::split_lines(content);
  std::vector<XyzStructure> structures;
  std::size_t line = 0;
  do {
    const Frame frame = find_frame(lines, line);
    structures.push_back(read_frame(lines, frame));
    line = skip_blank_lines(lines, frame.end());
  } while (line < lines.size());
  return structures;
}

}  // namespace kelp::input::quill::tool
