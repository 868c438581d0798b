#ifndef KELP_INPUT_QUILL_LOSSLESS_QUOTING_HPP
#define KELP_INPUT_QUILL_LOSSLESS_QUOTING_HPP

/// @file
/// Quotes the values of header commands so that they are read back unchanged.
///
///     HeaderCommand command{"opt", HeaderCommandKind::ParameterList};
///     command.parameters = {{"steps", "1,2"}, {"tight"}};
///     to_string(quote(command).command);  // "#opt(steps=\"1,2\", tight)"
///
/// The library's writer quotes nothing, but its reader removes quotes, trims values, and splits
/// lists at commas. A value that would change in this way is put between quotes: those that do not
/// occur in it, and double quotes if neither do. The reader decides whether it is then read back
/// unchanged, never rules written here.

#include <string>
#include <vector>

#include "kelp/input/quill/document.hpp"
#include "kelp/input/quill/lossless/export.hpp"

namespace kelp::input::quill::lossless {

/// Why a piece of a header command cannot be written so that it reads back.
struct QuotingProblem {
  /// The piece that cannot be written.
  enum class Piece { Command, CommandName, CommandValue, ParameterName, ParameterValue };

  /// Why it cannot.
  enum class Reason {
    LineBreak,        ///< in the name or value; a header command is one line
    ReadDifferently,  ///< the name would be read differently
    NoQuotesHelp,     ///< the value would be read differently, with either kind of quotes, too
    NoValue,          ///< an assignment without one
    UnknownKind,      ///< a kind outside its enumeration
    UnusedMembers,    ///< a value or parameters that the kind does not write
  };

  Piece piece = Piece::Command;                      ///< what cannot be written
  Reason reason = Reason::ReadDifferently;           ///< why
  std::string name = {};                             ///< of the command or parameter
  std::string value = {};                            ///< where the piece is a value
  HeaderCommandKind kind = HeaderCommandKind::Flag;  ///< of the command
  /// Whether the parameter could be written if it were the last one: a parameter with an unclosed
  /// quote includes the parameters after it.
  bool is_due_to_next_parameter = false;
};

/// A command whose to_string() is read back as the given one. Pieces for which that is impossible
/// are unchanged and have an entry in `problems`.
struct QuotedCommand {
  HeaderCommand command = {};                 ///< with quotes where they are needed
  std::vector<QuotingProblem> problems = {};  ///< empty if it reads back
};

/// Quotes every value of a command. Names cannot be quoted: a name that is read differently (with
/// blanks around it, or the name of a flag with "=" or "(" in it) is a problem. So are members that
/// the kind does not use and a kind outside its enumeration, which no text can keep.
KELP_QUILL_LOSSLESS_EXPORT QuotedCommand quote(const HeaderCommand& command);

/// A document whose to_string() is the canonical text with the values quoted. The problems are
/// those of header commands only; prove() decides whether the whole text is read back unchanged.
struct QuotedDocument {
  QuillInput document = {};                   ///< with quotes where they are needed
  std::vector<QuotingProblem> problems = {};  ///< in the order of the commands
};

/// Quotes every value of every command of a document, as quote() does for one.
KELP_QUILL_LOSSLESS_EXPORT QuotedDocument quote(const QuillInput& input);

}  // namespace kelp::input::quill::lossless

#endif  // KELP_INPUT_QUILL_LOSSLESS_QUOTING_HPP
