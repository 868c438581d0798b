#include "quill-inp/command_line/geometry_options.hpp"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "kelp/chem/elements.hpp"
#include "kelp/input/quill/lossless/wording.hpp"
#include "quill-inp/command_line/arguments.hpp"
#include "quill-inp/command_line/post_options.hpp"
#include "quill-inp/process/trouble.hpp"
#include "quill-inp/session/input_source.hpp"

namespace kelp::input::quill::tool {

namespace {

using lossless::TrackedDocument;
using lossless::XyzFrame;
using lossless::XyzProblem;
using lossless::XyzReading;

constexpr Option atoms_option{"--atoms", "FILE.xyz",
                              "Copy the atoms of an XYZ file into the input"};
constexpr Option frame_option{"--frame", "N",
                              "With --atoms, the N-th structure of several; -1 is the last"};
constexpr Option xyz_option{"--xyz", "PATH", "Refer to XYZ files"};
constexpr Option trajectory_option{"--trajectory", "PATH", "Refer to an XYZ trajectory"};

void warn_of_unknown_elements(Session& session, const std::string& name, const XyzFrame& frame) {
  for (std::size_t i = 0; i < frame.atoms.size(); ++i) {
    const std::string& symbol = frame.atoms[i].symbol;
    if (!chem::elements::atomic_number_from_symbol(symbol)) {
      session.reporter().warning({name, frame.first_atom_line + i},
                                 "unknown element symbol '" + symbol + "'");
    }
  }
}

[[noreturn]] void throw_trouble(const XyzProblem& problem) {
  const bool has_more = problem.kind == XyzProblem::Kind::TextAfterEnd;
  const char* const cure = has_more ? "; use --frame N for one of several structures" : "";
  throw Trouble(words(problem) + cure,
                problem.line == 0 ? std::nullopt : std::optional(problem.line));
}

/// What to take from the text of an XYZ file.
using ReadFrames = std::function<XyzReading(std::string_view)>;

std::vector<XyzFrame> read_from(Session& session, const std::string& argument,
                                const ReadFrames& read) {
  try {
    const InputSource source = read_source(session, argument);
    XyzReading reading = read(source.content);
    if (reading.problem) throw_trouble(*reading.problem);
    warn_of_unknown_elements(session, source.name, reading.frames.front());
    return std::move(reading.frames);
  } catch (const Trouble& trouble) {
    session.report(argument, trouble);
    throw ReportedTrouble();
  }
}

/// Returns the structure that --frame names, or the only one in the file.
XyzFrame read_structure(Session& session, const std::string& argument, std::optional<int> frame) {
  const auto read = [&](std::string_view content) {
    return frame ? lossless::read_xyz_frame(content, *frame)
                 : lossless::read_only_xyz_frame(content);
  };
  return std::move(read_from(session, argument, read).front());
}

std::optional<int> read_frame_number(const CLI::App& verb) {
  const auto text = value_of(verb, frame_option);
  if (!text) return std::nullopt;
  const int number = parse_integer(name_of(frame_option), *text);
  if (number == 0) throw UsageError("--frame counts from 1, or from the end with -1");
  return number;
}

}  // namespace

const std::string& require_path(const Option& option, const std::string& text) {
  if (text.find('=') < text.find('/')) {
    throw UsageError(
        name_of(option) + " takes a path, but '" + text +
        "' looks like a setting; put settings before the options or after '--', or write './" +
        text + "' for a path");
  }
  return text;
}

std::vector<XyzFrame> read_structures(Session& session, const std::string& argument,
                                      bool wants_all_frames) {
  if (wants_all_frames) return read_from(session, argument, lossless::read_xyz_frames);
  return {read_structure(session, argument, std::nullopt)};
}

void add_geometry_options(CLI::App& verb) {
  add_value(verb, atoms_option);
  add_value(verb, frame_option);
  add_values(verb, xyz_option);
  add_value(verb, trajectory_option);
}

GeometryChange read_geometry_change(Session& session, const CLI::App& verb) {
  const auto xyz_file = value_of(verb, atoms_option);
  const std::vector<std::string> paths = values_of(verb, xyz_option);
  const auto trajectory = value_of(verb, trajectory_option);
  for (const std::string& path : paths) require_path(xyz_option, path);
  const int given = (xyz_file ? 1 : 0) + (paths.empty() ? 0 : 1) + (trajectory ? 1 : 0);
  if (given > 1) throw UsageError("only one of --atoms, --xyz and --trajectory can be given");
  const std::optional<int> frame = read_frame_number(verb);
  if (frame && !xyz_file) throw UsageError("--frame needs --atoms");
  if (xyz_file) {
    return [atoms = read_structure(session, *xyz_file, frame).atoms](TrackedDocument& document) {
      document.set_geometry(atoms);
    };
  }
  if (!paths.empty()) return [paths](TrackedDocument& document) { document.set_xyz_files(paths); };
  if (trajectory) {
    return [path = require_path(trajectory_option, *trajectory)](TrackedDocument& document) {
      document.set_xyz_trajectory(path);
    };
  }
  return {};
}

}  // namespace kelp::input::quill::tool
