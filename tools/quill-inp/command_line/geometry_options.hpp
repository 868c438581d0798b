#ifndef KELP_INPUT_QUILL_TOOL_COMMAND_LINE_GEOMETRY_OPTIONS_HPP
#define KELP_INPUT_QUILL_TOOL_COMMAND_LINE_GEOMETRY_OPTIONS_HPP

#include <functional>
#include <string>
#include <vector>

#include "kelp/input/quill/lossless/tracked_document.hpp"
#include "kelp/input/quill/lossless/xyz_frames.hpp"
#include "quill-inp/command_line/arguments.hpp"
#include "quill-inp/session/session.hpp"

namespace kelp::input::quill::tool {

/// Adds --atoms, --frame, --xyz and --trajectory to a verb.
void add_geometry_options(CLI::App& verb);

/// Returns the structure in an XYZ file, or every one if all frames are wanted. Warns of symbols of
/// unknown elements. Throws ReportedTrouble for a file that cannot be read.
std::vector<lossless::XyzFrame> read_structures(Session& session, const std::string& argument,
                                                bool wants_all_frames);

/// Returns the text, which an option takes for a path. Throws UsageError for one that looks like a
/// setting: an option that takes any number of paths takes settings after them, too.
const std::string& require_path(const Option& option, const std::string& text);

/// A function that sets the geometry of a document.
using GeometryChange = std::function<void(lossless::TrackedDocument&)>;

/// Returns the change that these options ask for, empty if none of them was given. Reads the atoms
/// of the file that --atoms names. Throws UsageError for two of the options and for a path that
/// looks like a setting, "model=m2", and ReportedTrouble for a file that cannot be read.
GeometryChange read_geometry_change(Session& session, const CLI::App& verb);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_COMMAND_LINE_GEOMETRY_OPTIONS_HPP
