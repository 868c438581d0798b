#ifndef KELP_INPUT_QUILL_LINT_HEADER_LINE_HPP
#define KELP_INPUT_QUILL_LINT_HEADER_LINE_HPP

#include <optional>
#include <string>
#include <string_view>

#include "lint/source.hpp"
#include "reader/header_pieces.hpp"

// The pieces of header lines without the blanks around them, for rules that point at a piece.

namespace kelp::input::quill::lint {

/// Returns the pieces of the line of command number `index`, without blanks around them.
inline const HeaderPieces& pieces_of(const Source& source, std::size_t index) {
  return source.header_pieces()[index];
}

/// The entries of a parameter list, trimmed, empty ones included. A blank list has no entries.
class Entries {
 public:
  explicit Entries(const HeaderPieces& pieces);

  /// Returns the next entry, or nothing at the end.
  std::optional<ParameterPieces> next();

 private:
  ParameterEntries entries_;
  bool is_blank_;
};

/// Returns the whole line of a command, for a finding without a better place.
Range range_of_command(const Source& source, std::size_t index);

/// Returns the names that have a meaning in every input, and those that the options add.
std::vector<std::string> known_names(const Options& options);

/// Returns whether a name, in any letter case, has a meaning in every input, or is one that the
/// options add.
bool is_known(std::string_view name, const Options& options);

/// Returns the first word of a command's name.
std::string_view first_word(std::string_view name);

/// Returns the known name that was probably meant by a name that is not known, or nothing.
std::optional<std::string> meant_name(std::string_view name, const Options& options);

}  // namespace kelp::input::quill::lint

#endif  // KELP_INPUT_QUILL_LINT_HEADER_LINE_HPP
