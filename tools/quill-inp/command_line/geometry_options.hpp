#ifndef KELP_INPUT_QUILL_TOOL_COMMAND_LINE_GEOMETRY_OPTIONS_HPP
#define KELP_INPUT_QUILL_TOOL_COMMAND_LINE_GEOMETRY_OPTIONS_HPP

#include <optional>

#include "edit_support/surgical_edit.hpp"
#include "quill-inp/session/session.hpp"

namespace CLI {
class App;
}  // namespace CLI

namespace kelp::input::quill::tool {

/// Adds --atoms, --xyz and --trajectory to a verb.
void add_geometry_options(CLI::App& verb);

/// Returns the edit that they ask for, if one of them was given. Reads the atoms of the file that
/// --atoms names. Throws UsageError for two of them and for a path that looks like a setting,
/// "model=m2", and ReportedTrouble for a file that cannot be read.
std::optional<edit_support::Edit> read_geometry(Session& session, const CLI::App& verb);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_COMMAND_LINE_GEOMETRY_OPTIONS_HPP
