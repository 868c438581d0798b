#include "quill-inp/command_line/post_argument.hpp"

#include <cstddef>
#include <vector>

#include "kelp/core/text.hpp"
#include "quill-inp/process/trouble.hpp"

namespace kelp::input::quill::tool {

namespace {

struct Constraint {
  std::string_view option;
  PostCommandKind kind;
  std::size_t atoms;
  std::string_view example;
};

constexpr Constraint constraints[] = {
    {"--atom", PostCommandKind::AtomConstraint, 1, "an atom number, '1'"},
    {"--bond", PostCommandKind::BondConstraint, 2, "two atom numbers, '1,2'"},
    {"--angle", PostCommandKind::AngleConstraint, 3, "three atom numbers, '1,2,3'"},
    {"--dihedral", PostCommandKind::DihedralConstraint, 4, "four atom numbers, '1,2,3,4'"},
};

constexpr std::string_view scan_example =
    "two to four atom numbers, a value and a number of steps, '1,2:1.5:10'";

[[noreturn]] void throw_expected(const std::string& option, std::string_view expected,
                                 std::string_view text) {
  throw UsageError(option + " takes " + std::string(expected) + ", not '" + std::string(text) +
                   "'");
}

std::vector<std::string_view> split(std::string_view text, char separator) {
  std::vector<std::string_view> pieces;
  for (;;) {
    const std::size_t end = text.find(separator);
    pieces.push_back(text.substr(0, end));
    if (end == std::string_view::npos) return pieces;
    text.remove_prefix(end + 1);
  }
}

/// Stores atom numbers separated by commas; false when one is none.
bool read_atoms(std::string_view text, std::vector<std::int32_t>& atoms) {
  for (const std::string_view piece : split(text, ',')) {
    int number = 0;
    if (!core::text::try_parse_int(piece, number)) return false;
    atoms.push_back(number);
  }
  return true;
}

PostCommand parse_constraint(const Constraint& constraint, const std::string& text) {
  PostCommand command(constraint.kind);
  if (!read_atoms(text, command.atom_indices) || command.atom_indices.size() != constraint.atoms)
    throw_expected(std::string(constraint.option), constraint.example, text);
  return command;
}

PostCommand parse_scan(const std::string& text) {
  const std::vector<std::string_view> parts = split(text, ':');
  PostCommand command(PostCommandKind::Scan);
  double value = 0.0;
  int steps = 0;
  const bool is_scan = parts.size() == 3 && read_atoms(parts[0], command.atom_indices) &&
                       2 <= command.atom_indices.size() && command.atom_indices.size() <= 4 &&
                       core::text::try_parse_double(parts[1], value) &&
                       core::text::try_parse_int(parts[2], steps);
  if (!is_scan) throw_expected("--scan", scan_example, text);
  command.scan_value = value;
  command.scan_steps = steps;
  return command;
}

}  // namespace

std::int32_t parse_integer(const std::string& option, std::string_view text) {
  int number = 0;
  if (!core::text::try_parse_int(text, number)) throw_expected(option, "an integer", text);
  return number;
}

PostCommand parse_post_argument(const std::string& option, const std::string& text) {
  for (const Constraint& constraint : constraints) {
    if (constraint.option == option) return parse_constraint(constraint, text);
  }
  if (option == "--scan") return parse_scan(text);
  PostCommand command(option == "--post" ? PostCommandKind::PostFile : PostCommandKind::Raw);
  (option == "--post" ? command.post_file : command.raw_text) = text;
  return command;
}

}  // namespace kelp::input::quill::tool
