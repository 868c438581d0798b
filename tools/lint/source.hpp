#ifndef KELP_INPUT_QUILL_LINT_SOURCE_HPP
#define KELP_INPUT_QUILL_LINT_SOURCE_HPP

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "kelp/input/quill/lossless/read_text.hpp"
#include "lint/broken_line.hpp"
#include "lint/finding.hpp"

namespace kelp::input::quill {
struct HeaderPieces;
}

namespace kelp::input::quill::lint {

/// A file that an input refers to, as it was found.
struct ReferencedFile {
  enum class State { Missing, Unreadable, Read };

  State state = State::Missing;
  std::string reason = {};   // why it is unreadable
  std::string content = {};  // of a file that was read, at least up to the end of its first frame
};

/// What the checks use besides the text.
struct Options {
  std::vector<std::string> known_commands = {};  // of the project, besides those of every input
  double max_change = 1e-6;                      // of a number when the text is rewritten

  /// The names of commands that other inputs use as well, in canonical form and sorted. The code
  /// that makes the options owns the list.
  const std::vector<std::string>* other_names = nullptr;

  /// Finds a file by its path in the text. Without it, no rule looks at files.
  std::function<ReferencedFile(const std::string& path)> read_reference = {};
};

/// A referenced file, and how many atoms its first frame has, if it has one that can be read.
struct Reference {
  ReferencedFile file = {};
  std::optional<std::size_t> atoms = std::nullopt;
};

/// Everything that a check may use: a text, what the reader made of it, and what several checks
/// need from that. Keeps references to both arguments of its constructor.
class Source {
 public:
  Source(const lossless::ReadText& read, const Options& options);
  Source(const Source&) = delete;
  Source& operator=(const Source&) = delete;
  ~Source();

  const lossless::ReadText& read() const { return read_; }
  const Options& options() const { return options_; }
  std::string_view text() const { return read_.text; }
  const QuillInput& input() const { return read_.result.input; }
  const std::vector<LineRecord>& lines() const { return read_.lines; }

  /// Returns a line without its line end.
  std::string_view content(std::size_t line) const;

  /// Returns a line without blanks at its ends.
  std::string_view trimmed(std::size_t line) const;

  /// Returns where a view of the text is.
  Range range_of(std::string_view piece) const;

  /// The lines of the parts of the document, by the index of the part.
  const std::vector<std::size_t>& command_lines() const { return command_lines_; }
  const std::vector<std::size_t>& atom_lines() const { return atom_lines_; }
  const std::vector<std::size_t>& reference_lines() const { return reference_lines_; }
  const std::vector<std::size_t>& post_lines() const { return post_lines_; }

  /// The pieces of the lines of commands, without blanks around them, by the index of the command.
  const std::vector<HeaderPieces>& header_pieces() const { return header_pieces_; }

  /// The line of charge and multiplicity, of a document that has them.
  std::size_t charge_line() const { return charge_line_; }

  /// Whether the text has characters that look like ASCII, or cannot be seen.
  bool has_odd_characters() const { return has_odd_characters_; }

  /// The line that ended the coordinates although it looks like one of them, if there is one.
  const std::optional<BrokenLine>& broken_line() const { return broken_line_; }

  /// One for each path of the coordinates; empty if the options cannot find files.
  const std::vector<Reference>& references() const { return references_; }

  /// Returns how many atoms the input has, inline or in the one file that it refers to; nothing if
  /// that is not known.
  std::optional<std::size_t> count_atoms() const;

 private:
  void sort_lines();
  void find_pieces();

  const lossless::ReadText& read_;
  const Options& options_;
  std::vector<std::size_t> command_lines_;
  std::vector<std::size_t> atom_lines_;
  std::vector<std::size_t> reference_lines_;
  std::vector<std::size_t> post_lines_;
  std::vector<HeaderPieces> header_pieces_;
  std::size_t charge_line_ = 0;
  bool has_odd_characters_ = false;
  std::optional<BrokenLine> broken_line_;
  std::vector<Reference> references_;
};

}  // namespace kelp::input::quill::lint

#endif  // KELP_INPUT_QUILL_LINT_SOURCE_HPP
