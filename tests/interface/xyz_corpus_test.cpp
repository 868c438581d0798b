// Geometries as other programs write them, read from XYZ files and compared with the lines of these
// files. The test makes a few files itself and, if the environment variable KELP_QUILL_INP_XYZ_DIR
// names a folder, also uses every .xyz file in that folder.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "interface/expected.hpp"
#include "kelp/input/quill/quill.hpp"
#include "support/comparison.hpp"
#include "support/file_content.hpp"
#include "support/printing.hpp"
#include "support/temporary_folder.hpp"

namespace kelp::input::quill {
namespace {

using Lines = std::vector<std::string>;

/// The lines of a text with their line ends, so that they can be put together again.
Lines lines_with_ends(const std::string& text) {
  Lines lines;
  for (std::size_t start = 0; start < text.size();) {
    const std::size_t end = text.find('\n', start);
    const std::size_t next = end == std::string::npos ? text.size() : end + 1;
    lines.push_back(text.substr(start, next - start));
    start = next;
  }
  return lines;
}

Lines words_of(const std::string& line) {
  std::istringstream in(line);
  return Lines(std::istream_iterator<std::string>(in), std::istream_iterator<std::string>());
}

bool is_blank(const std::string& line) { return words_of(line).empty(); }

/// Reads the count that begins a frame: the first word of its first line.
bool read_count(const std::string& line, std::size_t& count) {
  const Lines words = words_of(line);
  if (words.empty() || words[0].find_first_not_of("0123456789") != std::string::npos) return false;
  count = std::stoul(words[0]);
  return true;
}

/// The atom lines of every frame. A file that does not begin with a count is one frame, of all its
/// lines.
std::vector<Lines> frames_of(const Lines& lines) {
  std::size_t count = 0;
  if (lines.empty() || !read_count(lines[0], count)) return {lines};
  std::vector<Lines> frames;
  auto line = lines.begin();
  while (line != lines.end() && read_count(*line, count)) {
    const auto left = static_cast<std::size_t>(lines.end() - line);
    const auto first = line + static_cast<std::ptrdiff_t>(std::min<std::size_t>(2, left));
    line += static_cast<std::ptrdiff_t>(std::min(count + 2, left));
    frames.emplace_back(first, line);
  }
  EXPECT_TRUE(std::all_of(line, lines.end(), is_blank)) << "text after the last frame";
  return frames;
}

bool is_ascii_letter(char c) { return ('A' <= c && c <= 'Z') || ('a' <= c && c <= 'z'); }

/// Reads a number as the C library does, as long as it is all of the word.
bool read_number(const std::string& word, double& number) {
  if (word.find_first_not_of("0123456789+-.eE") != std::string::npos) return false;
  char* end = nullptr;
  number = std::strtod(word.c_str(), &end);
  return end == word.c_str() + word.size();
}

std::string in_symbol_case(std::string symbol) {
  for (char& c : symbol) c = static_cast<char>('A' <= c && c <= 'Z' ? c - 'A' + 'a' : c);
  symbol[0] =
      static_cast<char>('a' <= symbol[0] && symbol[0] <= 'z' ? symbol[0] - 'a' + 'A' : symbol[0]);
  return symbol;
}

bool read_atom(const Lines& words, AtomRecord& atom) {
  if (words.size() != 4 || !std::all_of(words[0].begin(), words[0].end(), is_ascii_letter))
    return false;
  atom.symbol = in_symbol_case(words[0]);
  return read_number(words[1], atom.x) && read_number(words[2], atom.y) &&
         read_number(words[3], atom.z);
}

bool is_element(const std::string& symbol) {
  static const Lines symbols = words_of(
      "H He Li Be B C N O F Ne Na Mg Al Si P S Cl Ar K Ca Sc Ti V Cr Mn Fe Co Ni Cu Zn Ga Ge As Se "
      "Br Kr Rb Sr Y Zr Nb Mo Tc Ru Rh Pd Ag Cd In Sn Sb Te I Xe Cs Ba La Ce Pr Nd Pm Sm Eu Gd Tb "
      "Dy Ho Er Tm Yb Lu Hf Ta W Re Os Ir Pt Au Hg Tl Pb Bi Po At Rn Fr Ra Ac Th Pa U Np Pu Am Cm "
      "Bk Cf Es Fm Md No Lr Rf Db Sg Bh Hs Mt Ds Rg Cn Nh Fl Mc Lv Ts Og");
  return std::find(symbols.begin(), symbols.end(), symbol) != symbols.end();
}

std::string without_outer_blanks(const std::string& line) {
  const std::size_t first = line.find_first_not_of(" \t\v\f\r\n");
  const std::size_t last = line.find_last_not_of(" \t\v\f\r\n");
  return first == std::string::npos ? "" : line.substr(first, last + 1 - first);
}

/// The text before the lines of a file.
const std::string head = "#sp\n-1 2\n";
constexpr std::size_t head_lines = 2;

/// The content of the lines, read without the library: atoms up to the first line that is neither
/// blank nor an atom, and text from there on.
ParseResult expected_of(const Lines& lines) {
  ParseResult expected = read_as({{flag("sp")}, charged(-1, 2)});
  GeometryBlock& geometry = expected.input.geometry;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (is_blank(lines[i])) continue;
    AtomRecord atom;
    if (!expected.input.post_commands.empty() || !read_atom(words_of(lines[i]), atom)) {
      expected.input.post_commands.push_back(raw(without_outer_blanks(lines[i])));
      continue;
    }
    if (!is_element(atom.symbol))
      expected.warnings.push_back("Line " + std::to_string(head_lines + i + 1) +
                                  ": unknown element symbol '" + atom.symbol + "'");
    geometry.kind = GeometryKind::Atoms;
    geometry.atoms.push_back(atom);
  }
  return expected;
}

bool is_as_near_as_written(double left, double right) {
  return std::fabs(left - right) <= 5e-7 + 1e-12 * std::fabs(left);
}

bool is_as_near_as_written(const AtomRecord& left, const AtomRecord& right) {
  return left.symbol == right.symbol && is_as_near_as_written(left.x, right.x) &&
         is_as_near_as_written(left.y, right.y) && is_as_near_as_written(left.z, right.z);
}

/// Everything except the coordinates is read back as it was, and these as exactly as six decimals
/// allow.
void expect_same_when_written(const QuillInput& input) {
  const std::string text = input.to_string();
  ParseResult again = parse_string(text);
  EXPECT_EQ(again.input.to_string(), text);
  const std::vector<AtomRecord>& atoms = input.geometry.atoms;
  ASSERT_EQ(again.input.geometry.atoms.size(), atoms.size());
  for (std::size_t i = 0; i < atoms.size(); ++i) {
    EXPECT_TRUE(is_as_near_as_written(atoms[i], again.input.geometry.atoms[i]))
        << testing::PrintToString(again.input.geometry.atoms[i]) << " for "
        << testing::PrintToString(atoms[i]);
  }
  again.input.geometry.atoms = atoms;
  EXPECT_EQ(again.input, input);
}

void check_lines(const Lines& lines) {
  std::string text = head;
  for (const std::string& line : lines) text += line;
  const ParseResult result = parse_string(text);
  EXPECT_EQ(result, expected_of(lines));
  expect_same_when_written(result.input);
}

/// Checks every frame of every file in the folder, and every file as it is, counts and comments
/// included. Returns the number of frames.
std::size_t check_folder(const std::filesystem::path& folder) {
  std::set<std::filesystem::path> paths;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    if (entry.path().extension() == ".xyz") paths.insert(entry.path());
  }
  std::size_t frame_count = 0;
  for (const std::filesystem::path& path : paths) {
    const Lines lines = lines_with_ends(file_content(path).value());
    SCOPED_TRACE(path.filename().string());
    check_lines(lines);
    for (const Lines& frame : frames_of(lines)) {
      SCOPED_TRACE("frame " + std::to_string(++frame_count));
      EXPECT_FALSE(frame.empty());
      check_lines(frame);
    }
  }
  return frame_count;
}

/// Writes five frames into the folder, in the style of several programs.
void write_odd_files(const TemporaryFolder& folder) {
  folder.write("two_frames.xyz",
               "3\nwater, then without a line end\n"
               "\tO  0.0\t 0.0 .1173\nH 0.0 7.572e-1 -0.4692  \n  h -0. -7.572E-01 -.4692\n"
               "2\n\nCL 1e0 +2. -3.123456789012345\nXx\t100.0000004 0 -1e-9");
  folder.write("bare_with_both_line_ends.xyz",
               "fe 0.05384 2.61838 0.81368\r\n\r\nC -1.54137 1.74981 -0.02899 \n\t\nH 1 2 3\r\n");
  folder.write("not_all_atoms.xyz",
               "5 angstrom\r\n\r\nLa 0.0 0.0 0.0\r\nBq 0.0 2.22 0.0 charge -1\r\n"
               "13C 0 0 1\r\n6 0 0 2\r\nC 0 0 3\r\n");
  folder.write("element_numbers.xyz", "2\nnumbers\n6 0.0 0.0 0.0\n8 0.0 0.0 1.128\n");
}

TEST(XyzCorpus, IsReadLineByLine) {
  const TemporaryFolder odd_files;
  write_odd_files(odd_files);
  EXPECT_EQ(check_folder(odd_files.path()), 5U);
  if (const char* const folder = std::getenv("KELP_QUILL_INP_XYZ_DIR")) {
    SCOPED_TRACE(folder);
    const std::size_t frame_count = check_folder(folder);
    RecordProperty("frames", std::to_string(frame_count));
    EXPECT_GT(frame_count, 0U) << "there is no .xyz file in the folder";
  }
}

}  // namespace
}  // namespace kelp::input::quill
