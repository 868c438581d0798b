#ifndef KELP_INPUT_QUILL_LANGUAGE_SERVER_HANDLERS_CHECKING_HPP
#define KELP_INPUT_QUILL_LANGUAGE_SERVER_HANDLERS_CHECKING_HPP

#include <string>

#include "language_server/diagnostics/page_address.hpp"
#include "language_server/session/server_state.hpp"

// Texts are checked when somebody asks for their findings: a client that pulls them, a feature, or
// the server itself when it has nothing else to do. A check is kept until its text, a file that it
// refers to, or the choices of its project change.

namespace kelp::input::quill::language_server {

/// Returns the check of an open text as it is now.
const Check& check_of(ServerState& state, OpenDocument& document);

/// Returns a text as it is after all safe corrections.
std::string mended_text(ServerState& state, OpenDocument& document);

/// Returns what the project of a text has chosen. A file of choices that cannot be read is shown to
/// the user once.
const ProjectFiles::Reading& project_of(ServerState& state, const OpenDocument& document);

/// Returns a file that a text refers to, for any feature: the text that is open in the editor, or
/// the file. The text itself must be a file.
lint::ReferencedFile find_reference(ServerState& state, const OpenDocument& document,
                                    const std::string& path);

/// Notes that a text has changed, was opened or was closed, and what depends on it.
void note_change(ServerState& state, const std::string& uri);

/// Notes that the file at an absolute path has changed.
void note_file_change(ServerState& state, const std::string& path);

/// Notes that all texts have to be checked again.
void note_new_choices(ServerState& state);

/// Whether the client waits for findings that nobody asks for.
bool has_findings_to_publish(const ServerState& state);

/// Checks the next text whose findings the client waits for, or publishes them if that is done. A
/// change that arrives between the two makes the findings outdated, and they are not published.
void check_or_publish(ServerState& state);

/// Where the pages of the codes are.
Pages pages_of(const ServerState& state);

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_LANGUAGE_SERVER_HANDLERS_CHECKING_HPP
