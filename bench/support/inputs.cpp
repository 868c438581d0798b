#include "support/inputs.hpp"

#include <array>
#include <cmath>
#include <cstdint>
#include <random>
#include <string>

namespace kelp::input::quill::bench {

namespace {

using Random = std::mt19937_64;

// The standard distributions differ from library to library; these numbers do not.
double coordinate(Random& random) {
  return std::ldexp(static_cast<double>(random() >> 11), -53) * 100.0 - 50.0;
}

std::vector<AtomRecord> make_atoms(std::size_t count) {
  constexpr std::array<const char*, 8> symbols = {"C", "H", "H", "O", "N", "C", "Cl", "Fe"};
  // Ratios of two runs can be compared only if both have the same atoms, and nothing is secret
  // here.
  Random random(1);  // NOLINT(cert-msc32-c,cert-msc51-cpp)
  std::vector<AtomRecord> atoms;
  atoms.reserve(count);
  while (atoms.size() < count) {
    AtomRecord atom;
    atom.symbol = symbols[random() % symbols.size()];
    atom.x = coordinate(random);
    atom.y = coordinate(random);
    atom.z = coordinate(random);
    atoms.push_back(std::move(atom));
  }
  return atoms;
}

HeaderCommand assignment(std::string name, std::string value) {
  return HeaderCommand(std::move(name), HeaderCommandKind::Assignment, std::move(value));
}

HeaderCommand parameter_list(std::string name, std::vector<CommandParameter> parameters) {
  return HeaderCommand(std::move(name), HeaderCommandKind::ParameterList, std::nullopt,
                       std::move(parameters));
}

HeaderCommand optimisation() { return parameter_list("opt", {{"maxiter", "100"}, {"tight"}}); }

GeometryBlock atoms_block(std::size_t count) {
  GeometryBlock geometry;
  geometry.kind = GeometryKind::Atoms;
  geometry.has_charge_and_multiplicity = true;
  geometry.atoms = make_atoms(count);
  return geometry;
}

HeaderCommand header_command(std::size_t number) {
  const std::string name = "command_number_" + std::to_string(number);
  switch (number % 3) {
    case 0:
      return parameter_list(name, {{"maxiter", "50"}, {"tight"}, {"step", "0.05"}});
    case 1:
      return assignment(name, "general-organic");
    default:
      return HeaderCommand(name);
  }
}

constexpr std::size_t kinds_of_numbers = 5;

/// A constraint or a scan, of one of `kinds_of_numbers` kinds.
PostCommand numbers(std::size_t kind, std::int32_t atom) {
  switch (kind) {
    case 0:
      return PostCommand(PostCommandKind::BondConstraint, {atom, atom + 1});
    case 1:
      return PostCommand(PostCommandKind::AngleConstraint, {atom, atom + 1, atom + 2});
    case 2:
      return PostCommand(PostCommandKind::DihedralConstraint, {atom, atom + 1, atom + 2, atom + 3});
    case 3:
      return PostCommand(PostCommandKind::Scan, {atom, atom + 1}, 1.5, 10);
    default:
      return PostCommand(PostCommandKind::AtomConstraint, {atom});
  }
}

PostCommand post_command(std::size_t number) {
  const std::size_t kind = number % (kinds_of_numbers + 2);
  if (kind < kinds_of_numbers) return numbers(kind, static_cast<std::int32_t>(number));
  if (kind > kinds_of_numbers)
    return PostCommand(PostCommandKind::Raw, {}, std::nullopt, std::nullopt, {},
                       "keep this line of text");
  return PostCommand(PostCommandKind::PostFile, {}, std::nullopt, std::nullopt,
                     "results/run " + std::to_string(number));
}

}  // namespace

QuillInput molecule(std::size_t atoms) {
  return QuillInput({optimisation(), assignment("model", "general-organic")}, atoms_block(atoms));
}

QuillInput side_by_side(const QuillInput& molecule, std::size_t atoms) {
  constexpr double width = 12.0;
  constexpr std::size_t in_a_row = 36;
  QuillInput input(molecule);
  std::vector<AtomRecord>& all = input.geometry.atoms;
  all.clear();
  for (std::size_t copy = 0; all.size() < atoms; ++copy) {
    for (AtomRecord atom : molecule.geometry.atoms) {
      atom.x += width * static_cast<double>(copy % in_a_row);
      atom.y += width * static_cast<double>(copy / in_a_row % in_a_row);
      atom.z += width * static_cast<double>(copy / (in_a_row * in_a_row));
      all.push_back(std::move(atom));
    }
  }
  return input;
}

QuillInput header_heavy(std::size_t lines) {
  QuillInput input({}, atoms_block(1));
  for (std::size_t i = 0; i < lines; ++i) input.commands.push_back(header_command(i));
  return input;
}

QuillInput post_heavy(std::size_t lines) {
  QuillInput input({optimisation()}, atoms_block(1));
  for (std::size_t i = 0; i < lines; ++i) input.post_commands.push_back(post_command(i));
  return input;
}

QuillInput constraints_and_scans(std::size_t lines) {
  QuillInput input;
  for (std::size_t i = 0; i < lines; ++i)
    input.post_commands.push_back(numbers(i % kinds_of_numbers, static_cast<std::int32_t>(i)));
  return input;
}

QuillInput references(std::size_t files) {
  QuillInput input({optimisation(), assignment("model", "general-organic")});
  input.geometry.kind = GeometryKind::XyzFile;
  for (std::size_t i = 0; i < files; ++i)
    input.geometry.xyz_files.push_back("structures/run " + std::to_string(i) + ".xyz");
  return input;
}

QuillInput small_job() {
  QuillInput input(
      {assignment("model", "general-organic"), assignment("device", "cpu"), HeaderCommand("freq"),
       parameter_list("grid", {{"points", "99"}, {"prune"}}), assignment("memory", "16000"),
       assignment("threads", "8"), parameter_list("scf", {{"maxiter", "200"}, {"conv", "1e-8"}}),
       optimisation(), HeaderCommand("print"), assignment("title", "thirty atoms")},
      atoms_block(30));
  return input;
}

}  // namespace kelp::input::quill::bench
