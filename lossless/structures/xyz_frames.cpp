#include "kelp/input/quill/lossless/xyz_frames.hpp"

#include <algorithm>
#include <array>
#include <utility>

#include "kelp/chem/elements.hpp"
#include "kelp/core/text.hpp"

namespace kelp::input::quill::lossless {

namespace text = core::text;

namespace {

using Kind = XyzProblem::Kind;

constexpr std::size_t words_of_an_atom = 4;  // a symbol and three coordinates

/// The lines of a text, one after another, without their ends.
class Lines {
 public:
  explicit Lines(std::string_view text) : rest_(text) {}

  bool are_at_end() const { return rest_.empty(); }

  /// The number of the next line, counted from 1.
  std::size_t number() const { return number_; }

  /// Returns the next line; there is one.
  std::string_view take() {
    const std::size_t end = std::min(rest_.find('\n'), rest_.size());
    const std::string_view line = rest_.substr(0, end);
    rest_.remove_prefix(std::min(end + 1, rest_.size()));
    ++number_;
    return !line.empty() && line.back() == '\r' ? line.substr(0, line.size() - 1) : line;
  }

 private:
  std::string_view rest_;
  std::size_t number_ = 1;
};

bool is_space(char c) { return c == ' ' || ('\t' <= c && c <= '\r'); }
bool is_letter(char c) { return ('A' <= c && c <= 'Z') || ('a' <= c && c <= 'z'); }

/// Returns the first words of a line; those that it does not have are empty.
std::array<std::string_view, words_of_an_atom> first_words(std::string_view line) {
  std::array<std::string_view, words_of_an_atom> words;
  const char* at = line.data();
  const char* const end = at + line.size();
  for (std::string_view& word : words) {
    at = std::find_if_not(at, end, is_space);
    const char* const word_end = std::find_if(at, end, is_space);
    word = {at, static_cast<std::size_t>(word_end - at)};
    at = word_end;
  }
  return words;
}

bool is_symbol(std::string_view word) {
  return !word.empty() && std::all_of(word.begin(), word.end(), is_letter);
}

std::optional<AtomRecord> find_atom(std::string_view line) {
  const auto [symbol, x, y, z] = first_words(line);
  AtomRecord atom;
  if (!is_symbol(symbol) || !text::try_parse_double(x, atom.x) ||
      !text::try_parse_double(y, atom.y) || !text::try_parse_double(z, atom.z))
    return std::nullopt;
  atom.symbol = chem::elements::normalize_symbol(symbol);
  return atom;
}

/// Skips blank lines and returns whether a line is left.
bool find_next_frame(Lines& lines) {
  while (!lines.are_at_end()) {
    const Lines here = lines;
    const std::string_view line = lines.take();
    if (!std::all_of(line.begin(), line.end(), is_space)) {
      lines = here;
      return true;
    }
  }
  return false;
}

/// The first two lines of a frame.
struct Heading {
  std::size_t line = 0;  ///< the number of the first of them
  std::size_t atoms = 0;
  std::string_view comment = {};
};

/// Takes the heading of the next frame, or gives `reading` a problem.
std::optional<Heading> take_heading(Lines& lines, XyzReading& reading) {
  Heading heading;
  heading.line = lines.number();
  const auto count = lines.are_at_end() ? std::nullopt : find_xyz_count(lines.take());
  if (!count) {
    const Kind kind = heading.line == 1 ? Kind::NoCount : Kind::NoNextCount;
    reading.problem = XyzProblem{kind, heading.line};
    return std::nullopt;
  }
  heading.atoms = *count;
  if (!lines.are_at_end()) heading.comment = lines.take();
  return heading;
}

void set_too_few(XyzReading& reading, const Heading& heading, std::size_t found) {
  reading.problem = XyzProblem{Kind::TooFewAtoms, heading.line, found, heading.atoms};
}

/// Skips the atoms of a frame; returns whether it has all of them.
bool skip_atoms(Lines& lines, const Heading& heading, XyzReading& reading) {
  for (std::size_t found = 0; found < heading.atoms; ++found) {
    if (lines.are_at_end()) {
      set_too_few(reading, heading, found);
      return false;
    }
    lines.take();
  }
  return true;
}

/// Takes the atoms of a frame into `reading`; returns whether it could.
bool take_atoms(Lines& lines, const Heading& heading, XyzReading& reading) {
  // Missing atoms are reported before wrong ones, and a count never reserves room for more than
  // there is.
  Lines ahead = lines;
  if (!skip_atoms(ahead, heading, reading)) return false;
  XyzFrame frame{{}, std::string(heading.comment), lines.number()};
  frame.atoms.reserve(heading.atoms);
  for (std::size_t i = 0; i < heading.atoms; ++i) {
    const std::size_t number = lines.number();
    auto atom = find_atom(lines.take());
    if (!atom) {
      reading.problem = XyzProblem{Kind::NoAtom, number};
      return false;
    }
    frame.atoms.push_back(std::move(*atom));
  }
  reading.frames.push_back(std::move(frame));
  return true;
}

bool take_frame(Lines& lines, XyzReading& reading) {
  const auto heading = take_heading(lines, reading);
  return heading && take_atoms(lines, *heading, reading);
}

bool skip_frame(Lines& lines, XyzReading& reading) {
  const auto heading = take_heading(lines, reading);
  return heading && skip_atoms(lines, *heading, reading);
}

void set_no_such_frame(XyzReading& reading, int number, std::size_t frames) {
  XyzProblem problem{Kind::NoSuchFrame};
  problem.found = frames;
  problem.frame = number;
  reading.problem = problem;
}

/// Returns where each frame begins, up to `most` of them, or gives `reading` a problem.
std::vector<Lines> find_frames(Lines lines, std::size_t most, XyzReading& reading) {
  std::vector<Lines> frames;
  do {
    frames.push_back(lines);
    if (frames.size() == most || !skip_frame(lines, reading)) break;
  } while (find_next_frame(lines));
  return frames;
}

}  // namespace

std::optional<std::size_t> find_xyz_count(std::string_view text) {
  int count = 0;
  const std::string first_line = text::trim(text.substr(0, text.find('\n')));
  if (!text::try_parse_int(first_line, count) || count < 1) return std::nullopt;
  return static_cast<std::size_t>(count);
}

XyzReading read_xyz_frames(std::string_view text) {
  XyzReading reading;
  Lines lines(text);
  while (take_frame(lines, reading) && find_next_frame(lines)) {
  }
  return reading;
}

XyzReading read_xyz_frame(std::string_view text, int number) {
  XyzReading reading;
  const bool counts_from_end = number < 0;
  const std::size_t wanted =
      counts_from_end ? 0U - static_cast<std::size_t>(number) : static_cast<std::size_t>(number);
  const std::vector<Lines> frames = find_frames(Lines(text), counts_from_end ? 0 : wanted, reading);
  if (reading.problem) return reading;
  if (wanted == 0 || wanted > frames.size()) {
    set_no_such_frame(reading, number, frames.size());
    return reading;
  }
  Lines lines = frames[counts_from_end ? frames.size() - wanted : wanted - 1];
  take_frame(lines, reading);
  return reading;
}

XyzReading read_only_xyz_frame(std::string_view text) {
  XyzReading reading;
  Lines lines(text);
  if (take_frame(lines, reading) && find_next_frame(lines))
    reading.problem = XyzProblem{Kind::TextAfterEnd, lines.number()};
  return reading;
}

}  // namespace kelp::input::quill::lossless
