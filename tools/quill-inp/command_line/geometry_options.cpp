#include "quill-inp/command_line/geometry_options.hpp"

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "kelp/chem/elements.hpp"
#include "quill-inp/command_line/arguments.hpp"
#include "quill-inp/formats/xyz_file.hpp"
#include "quill-inp/process/trouble.hpp"
#include "quill-inp/session/input_source.hpp"

namespace kelp::input::quill::tool {

namespace {

using lossless::TrackedDocument;

constexpr Option atoms_option{"--atoms", "FILE.xyz",
                              "Copy the atoms of an XYZ file into the input"};
constexpr Option xyz_option{"--xyz", "PATH", "Refer to XYZ files"};
constexpr Option trajectory_option{"--trajectory", "PATH", "Refer to an XYZ trajectory"};

void warn_of_unknown_elements(Session& session, const std::string& name,
                              const std::vector<AtomRecord>& atoms) {
  for (std::size_t i = 0; i < atoms.size(); ++i) {
    if (!chem::elements::atomic_number_from_symbol(atoms[i].symbol)) {
      session.reporter().warning({name, xyz_lines_before_atoms + i + 1},
                                 "unknown element symbol '" + atoms[i].symbol + "'");
    }
  }
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

std::vector<std::vector<AtomRecord>> read_structures(Session& session, const std::string& argument,
                                                     bool wants_all_frames) {
  try {
    const InputSource source = read_source(session, argument);
    std::vector<std::vector<AtomRecord>> structures;
    if (wants_all_frames) {
      structures = read_xyz_frames(source.content);
    } else {
      structures.push_back(read_xyz_atoms(source.content));
    }
    warn_of_unknown_elements(session, source.name, structures.front());
    return structures;
  } catch (const Trouble& trouble) {
    session.report(argument, trouble);
    throw ReportedTrouble();
  }
}

void add_geometry_options(CLI::App& verb) {
  add_value(verb, atoms_option);
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
  if (xyz_file) {
    return [atoms = std::move(read_structures(session, *xyz_file, false).front())](
               TrackedDocument& document) { document.set_geometry(atoms); };
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
