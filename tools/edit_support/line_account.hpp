#ifndef KELP_INPUT_QUILL_EDIT_SUPPORT_LINE_ACCOUNT_HPP
#define KELP_INPUT_QUILL_EDIT_SUPPORT_LINE_ACCOUNT_HPP

// What the reader made of every physical line of a text.
//
//   const ParseResult result = parse_string(text);
//   for (const AccountedLine& line : account_for_lines(text, result))
//     std::cout << line.number << ": " << describe(line, result.input) << '\n';
//
// The account is drawn up by counting, never by reading a line again: commands, charge line,
// coordinate lines and post-processing lines stand in a fixed order, the result says how many there
// are of each, and the warnings name the lines that left nothing in the document. It can therefore
// not disagree with the reader. The functions keep no state; any number of threads may call them.

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "kelp/input/quill/reader.hpp"

namespace kelp::input::quill::edit_support {

/// What a line is to the reader.
enum class LineRole {
  Blank,                  // means nothing anywhere
  Command,                // a header line: commands[index]
  ChargeAndMultiplicity,  // the two numbers of the geometry
  Atom,                   // geometry.atoms[index]
  XyzReference,           // geometry.xyz_files[index], or no index for a line without a path
  Trajectory,             // geometry.xyz_files[0], or no index for a line without a path
  PostCommand,            // post_commands[index]
  Dropped,                // a malformed post-processing line that left nothing but a warning
};

/// One physical line. The text it stands in is `offset`, `length` bytes of content, then
/// `terminator_length` bytes of line end: 2 for "\r\n", 1 for "\n", 0 for a last line without one.
struct AccountedLine {
  std::size_t number = 0;  // counted from 1, as in the reader's warnings
  LineRole role = LineRole::Blank;
  std::optional<std::size_t> index = std::nullopt;  // into the list that `role` names, from 0
  std::size_t offset = 0;
  std::size_t length = 0;
  std::size_t terminator_length = 0;

  /// Return the line without and with its end, as views of the text that was accounted for.
  std::string_view content(std::string_view text) const { return text.substr(offset, length); }
  std::string_view whole(std::string_view text) const {
    return text.substr(offset, length + terminator_length);
  }
};

/// Returns one entry per physical line of `text`, in order: together they cover every byte.
/// `result` is what parse_string(text) returned. Throws std::invalid_argument when the counts show
/// that it is the result of another text. Linear in the length of the text.
std::vector<AccountedLine> account_for_lines(std::string_view text, const ParseResult& result);

/// Returns the position in `account` of the line with this role and index, or nothing.
std::optional<std::size_t> find_line(const std::vector<AccountedLine>& account, LineRole role,
                                     std::optional<std::size_t> index = std::nullopt);

/// Returns what the line is, in words without an article and with numbers counted from 1:
/// "command 2", "charge and multiplicity", "atom 37", "XYZ reference 1", "XYZ reference without a
/// path", "trajectory reference", "bond constraint", "raw text", "dropped", "blank". `input` is the
/// document of the result that the account was drawn up from.
std::string describe(const AccountedLine& line, const QuillInput& input);

/// Returns the kind in words without an article: "angle constraint", "scan", "post file", "raw
/// text"; "post-processing line of unknown kind" for a value outside the enumeration.
std::string_view describe(PostCommandKind kind);

}  // namespace kelp::input::quill::edit_support

#endif  // KELP_INPUT_QUILL_EDIT_SUPPORT_LINE_ACCOUNT_HPP
