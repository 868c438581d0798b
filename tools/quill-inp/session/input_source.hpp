#ifndef KELP_INPUT_QUILL_TOOL_SESSION_INPUT_SOURCE_HPP
#define KELP_INPUT_QUILL_TOOL_SESSION_INPUT_SOURCE_HPP

#include <chrono>
#include <optional>
#include <string>

#include "kelp/input/quill/lossless/file_replacement.hpp"
#include "kelp/input/quill/lossless/read_text.hpp"
#include "quill-inp/session/session.hpp"

namespace kelp::input::quill::tool {

/// The content of a file or of standard input, and the name to show for it.
struct InputSource {
  std::string name = {};
  std::string content = {};
};

/// The same for an input, with what the reader made of its text, and with the file if it is to be
/// replaced.
struct ReadInput {
  std::string name = {};
  lossless::ReadText read = {};
  std::optional<lossless::FileToReplace> file = std::nullopt;
};

/// The same without the text, if only the document and the warnings are needed.
struct ReadDocument {
  std::string name = {};
  ParseResult result = {};
};

/// Reads the file that `argument` names, or standard input for "-". A pipe that another program
/// writes to is read, too. Throws Trouble when the file does not exist, when it is anything else,
/// when it is larger than the session accepts, when it changes while it is read, when standard
/// output goes into it, and when it cannot be read.
InputSource read_source(Session& session, const std::string& argument);

/// Read such a file as a QUILL input. They throw as read_source() does.
ReadInput read_input(Session& session, const std::string& argument);
ReadDocument read_document(Session& session, const std::string& argument);

/// Frees the memory for what the reader made of each line, which is as much as the text takes, or
/// more. Text and document stay.
void forget_lines(ReadInput& input);

/// The same for the text, where nothing that is still needed has views of it.
void forget_text(ReadInput& input);

/// Reads such a file to replace it. Waits at most `patience` for other programs that replace it.
/// Throws as read_source() does, for standard input, and when the waiting is over.
ReadInput read_for_replacing(Session& session, const std::string& argument,
                             std::chrono::milliseconds patience);

/// Throws Trouble when `argument` names the file that standard output goes into: the shell may have
/// emptied it, and the program would read its own output. Does nothing if the file does not exist.
void require_apart_from_output(Session& session, const std::string& argument);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_SESSION_INPUT_SOURCE_HPP
