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

/// Returns how long the first lines of a text are, with their line ends.
std::size_t size_of_lines(std::string_view content, std::size_t lines) {
  std::size_t size = 0;
  for (; lines > 0 && size < content.size(); --lines)
    size = std::min(content.find('\n', size), content.size() - 1) + 1;
  return size;
}

/// Removes the blank lines at the beginning of a text, and returns how many there were.
std::size_t remove_blank_lines(std::string_view& content) {
  std::size_t lines = 0;
  while (!content.empty()) {
    const std::size_t size = size_of_lines(content, 1);
    if (!text::trim(content.substr(0, size)).empty()) break;
    content.remove_prefix(size);
    ++lines;
  }
  return lines;
}

}  // namespace

std::optional<std::size_t> find_xyz_count(std::string_view content) {
  const std::string first_line = text::trim(content.substr(0, content.find('\n')));
  int count = 0;
  if (!text::try_parse_int(first_line, count) || count < 1) return std::nullopt;
  return static_cast<std::size_t>(count);
}

std::vector<AtomRecord> read_xyz_atoms(std::string_view content) {
  const std::vector<std::string> lines = text::split_lines(content);
  const std::optional<std::size_t> stated = find_xyz_count(content);
  if (!stated) throw_at(1, "an XYZ file begins with the number of its atoms, 1 or more");
  const std::size_t count = *stated;
  const std::size_t end = xyz_lines_before_atoms + count;
  if (lines.size() < end) {
    const std::size_t found =
        std::max(lines.size(), xyz_lines_before_atoms) - xyz_lines_before_atoms;
    throw Trouble("has " + counted(found, "atom") + " instead of " + std::to_string(count));
  }
  std::vector<AtomRecord> atoms;
  atoms.reserve(count);
  for (std::size_t i = xyz_lines_before_atoms; i < end; ++i)
    atoms.push_back(read_atom(lines[i], i + 1));
  for (std::size_t i = end; i < lines.size(); ++i) {
    if (!text::trim(lines[i]).empty())
      throw_at(i + 1, "more text after the last atom; only files with one structure can be read");
  }
  return atoms;
}

std::vector<std::vector<AtomRecord>> read_xyz_frames(std::string_view content) {
  std::vector<std::vector<AtomRecord>> frames;
  std::size_t lines_before = 0;
  do {
    const std::size_t atoms = find_xyz_count(content).value_or(0);
    const std::size_t size = size_of_lines(content, xyz_lines_before_atoms + atoms);
    try {
      frames.push_back(read_xyz_atoms(content.substr(0, size)));
    } catch (const Trouble& trouble) {
      const auto line = trouble.line();
      throw Trouble(trouble.what(), line ? std::optional(lines_before + *line) : std::nullopt);
    }
    lines_before += xyz_lines_before_atoms + atoms;
    content.remove_prefix(size);
    lines_before += remove_blank_lines(content);
  } while (!content.empty());
  return frames;
}

}  // namespace kelp::input::quill::tool
