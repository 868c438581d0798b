#ifndef KELP_INPUT_QUILL_LOSSLESS_EDIT_QUOTING_HPP
#define KELP_INPUT_QUILL_LOSSLESS_EDIT_QUOTING_HPP

// Quoting the values of header commands so that they read back as they are.
//
//   to_string(quote(command).command);     // a header line that reads back as `command`
//   quote(document).document.to_string();  // the canonical text, with quotes where they are needed
//
// The library's writer quotes nothing, while its reader removes quotes, trims, and splits lists at
// commas. A value that would not survive that is put between quotes: in the kind that does not
// occur in it, double quotes before single ones. Whether it then survives is decided by asking the
// reader, never by rules of its own.

#include <string>
#include <vector>

#include "kelp/input/quill/document.hpp"

namespace kelp::input::quill::lossless_edit {

/// Why a piece of a header command cannot be written so that it reads back.
struct QuotingProblem {
  enum class Piece { Command, CommandName, CommandValue, ParameterName, ParameterValue };
  enum class Reason {
    LineBreak,        // in the name or value; a header command is one line
    ReadDifferently,  // the name would be
    NoQuotesHelp,     // the value would be read differently, with quotes of both kinds too
    NoValue,          // an assignment without one
    UnknownKind,      // a kind outside its enumeration
    UnusedMembers,    // a value or parameters that the kind does not write
  };

  Piece piece = Piece::Command;
  Reason reason = Reason::ReadDifferently;
  std::string name = {};   // of the command or parameter
  std::string value = {};  // where the piece is a value
  HeaderCommandKind kind = HeaderCommandKind::Flag;
  /// Whether the parameter could be written if it were the last one: an unclosed quote takes the
  /// parameters after it into its own.
  bool is_due_to_next_parameter = false;
};

/// A command whose to_string() reads back as the one that was given. Where that cannot be, there
/// are problems, and the pieces concerned are as they were.
struct QuotedCommand {
  HeaderCommand command = {};
  std::vector<QuotingProblem> problems = {};
};

/// Quotes every value of a command. Names cannot be quoted: one that does not read back (one with
/// outer blanks, a flag's with "=" or "(" in it) is a problem. So are members that the kind does
/// not use and a kind outside its enumeration, which no text can keep.
QuotedCommand quote(const HeaderCommand& command);

/// A document whose to_string() is the canonical text with the values quoted. The problems are
/// those of header commands only; whether the whole text reads back is for prove() to say.
struct QuotedDocument {
  QuillInput document = {};
  std::vector<QuotingProblem> problems = {};
};

QuotedDocument quote(const QuillInput& input);

}  // namespace kelp::input::quill::lossless_edit

#endif  // KELP_INPUT_QUILL_LOSSLESS_EDIT_QUOTING_HPP
