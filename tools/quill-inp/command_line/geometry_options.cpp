#include "quill-inp/command_line/geometry_options.hpp"

#include <cstddef>
#include <string>
#include <vector>

#include "kelp/chem/elements.hpp"
#include "quill-inp/command_line/arguments.hpp"
#include "quill-inp/formats/xyz_file.hpp"
#include "quill-inp/process/trouble.hpp"
#include "quill-inp/session/input_source.hpp"
#include "quill-inp/verbs/verb.hpp"

namespace kelp::input::quill::tool {

namespace {

void warn_of_unknown_elements(Session& session, const std::string& name,
                              const std::vector<AtomRecord>& atoms) {
  for (std::size_t i = 0; i < atoms.size(); ++i) {
    if (!chem::elements::atomic_number_from_symbol(atoms[i].symbol)) {
      session.reporter().warning({name, xyz_lines_before_atoms + i + 1},
                                 "unknown element symbol '" + atoms[i].symbol + "'");
    }
  }
}

/// An option that takes any number of paths takes a setting behind them for one, too.
std::string require_path(const std::string& option, const std::string& text) {
  if (text.find('=') < text.find('/')) {
    throw UsageError(option + " takes a path, and '" + text +
                     "' looks like a setting; settings of 'set' stand in front of the options or "
                     "behind '--', and a path of this name is written './" +
                     text + "'");
  }
  return text;
}

std::vector<AtomRecord> read_atoms(Session& session, const std::string& argument) {
  try {
    const InputSource source = read_input(session, argument);
    std::vector<AtomRecord> atoms = read_xyz_atoms(source.content);
    warn_of_unknown_elements(session, source.name, atoms);
    return atoms;
  } catch (const Trouble& trouble) {
    report(session, argument, trouble);
    throw ReportedTrouble();
  }
}

}  // namespace

void add_geometry_options(CLI::App& verb) {
  add_value(verb, "--atoms", "FILE.xyz", "Inline the atoms of an XYZ file");
  add_values(verb, "--xyz", "PATH", "Refer to XYZ files");
  add_value(verb, "--trajectory", "PATH", "Refer to an XYZ trajectory");
}

std::optional<edit_support::Edit> read_geometry(Session& session, const CLI::App& verb) {
  const auto atoms = value_of(verb, "--atoms");
  std::vector<std::string> files;
  for (const std::string& path : values_of(verb, "--xyz"))
    files.push_back(require_path("--xyz", path));
  const auto trajectory = value_of(verb, "--trajectory");
  const int given = (atoms ? 1 : 0) + (files.empty() ? 0 : 1) + (trajectory ? 1 : 0);
  if (given > 1) throw UsageError("--atoms, --xyz and --trajectory exclude each other");
  if (atoms) return edit_support::SetAtoms{read_atoms(session, *atoms)};
  if (!files.empty()) return edit_support::SetXyzFiles{files};
  if (trajectory) return edit_support::SetTrajectory{require_path("--trajectory", *trajectory)};
  return std::nullopt;
}

}  // namespace kelp::input::quill::tool
