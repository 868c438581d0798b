#ifndef KELP_INPUT_QUILL_READER_HEADER_PIECES_HPP
#define KELP_INPUT_QUILL_READER_HEADER_PIECES_HPP

#include <cstddef>
#include <optional>
#include <string_view>

#include "kelp/input/quill/document.hpp"

// Where the pieces of a header line are. The reader makes a command from them. Code that has to
// point at a piece in the text, or needs to know what a line says besides its command, uses the
// same pieces.

namespace kelp::input::quill {

/// The pieces of a header line, as views of it that may have blanks around them.
struct HeaderPieces {
  HeaderCommandKind kind = HeaderCommandKind::Flag;
  std::string_view name = {};
  std::string_view value = {};     // of an assignment: all that follows the "="
  std::string_view list = {};      // of a parameter list: all between the parentheses
  bool is_closed = true;           // false for a parameter list without its ")"
  std::string_view trailing = {};  // the text after the last ")", which is not part of the command
};

/// Finds the pieces of a header line, "#" and blanks around it included. A line with nothing after
/// its "#" gives a flag without a name.
HeaderPieces find_header_pieces(std::string_view line);

/// One entry of a parameter list, as views of it that may have blanks around them.
struct ParameterPieces {
  std::string_view name = {};
  std::optional<std::string_view> value = std::nullopt;  // all that follows the first "="
};

/// Walks over the entries of a parameter list, which commas outside quotes separate, empty entries
/// included. An empty list has one entry, which is empty.
class ParameterEntries {
 public:
  explicit ParameterEntries(std::string_view list) : list_(list) {}

  bool at_end() const { return start_ > list_.size(); }

  /// Returns the next entry; not to be called at the end.
  ParameterPieces next();

 private:
  std::string_view list_;
  std::size_t start_ = 0;
};

/// Returns whether a header line says something that is not part of its command and is lost when
/// the line is rewritten: text after the closing parenthesis, or an entry that has a value and no
/// name.
bool says_more_than_its_command(std::string_view line);

/// Returns the view of `text` without the white space at its two ends.
std::string_view trimmed_view(std::string_view text);

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_READER_HEADER_PIECES_HPP
