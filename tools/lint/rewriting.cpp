#include "lint/rewriting.hpp"

#include <cmath>
#include <string>

#include "editing/expected_lines.hpp"
#include "kelp/input/quill/writer.hpp"
#include "lint/tokens.hpp"
#include "reader/coordinate_lines.hpp"
#include "reader/post_line.hpp"

namespace kelp::input::quill::lint {

namespace {

constexpr double places = 1e6;       // coordinates have six decimals
constexpr double least_width = 1e5;  // with a sign, such a coordinate fills its column
constexpr std::size_t coordinates = 3;

/// Whether a coordinate is the double nearest to a decimal number of six places: the quotient of
/// two integers that doubles hold exactly is rounded once, as the reader rounds. Such a number is
/// written as it is.
bool is_short(double coordinate) {
  return std::nearbyint(coordinate * places) / places == coordinate;
}

bool is_plain(const AtomRecord& atom) {
  return is_short(atom.x) && is_short(atom.y) && is_short(atom.z);
}

bool is_narrow(double coordinate) { return std::fabs(coordinate) < least_width; }

using Use = std::function<void(const RoundedNumber&)>;

void pass_on_atom(const AtomRecord& atom, std::size_t line, const Use& use) {
  AtomRecord again;
  if (!parse_atom_line(lossless::atom_line(atom), again)) return;
  const double before[coordinates] = {atom.x, atom.y, atom.z};
  const double after[coordinates] = {again.x, again.y, again.z};
  for (std::size_t axis = 0; axis < coordinates; ++axis) {
    const double change = std::fabs(before[axis] - after[axis]);
    if (change > 0.0) use({line, axis + 1, change});
  }
}

void pass_on_scan(const Source& source, std::size_t index, const Use& use) {
  const PostCommand& scan = source.input().post_commands[index];
  if (!scan.scan_value || !std::isfinite(*scan.scan_value)) return;
  PostCommand again;
  if (!parse_post_line(to_string(scan), again) || !again.scan_value) return;
  const double change = std::fabs(*scan.scan_value - *again.scan_value);
  if (change > 0.0) use({source.post_lines()[index], scan.atom_indices.size() + 1, change});
}

}  // namespace

void for_each_rounded_number(const Source& source, const Use& use) {
  const std::vector<AtomRecord>& atoms = source.input().geometry.atoms;
  for (std::size_t i = 0; i < atoms.size(); ++i) {
    if (!is_plain(atoms[i])) pass_on_atom(atoms[i], source.atom_lines()[i], use);
  }
  for (std::size_t i = 0; i < source.post_lines().size(); ++i) pass_on_scan(source, i, use);
}

bool reads_back(const AtomRecord& atom) {
  if (is_narrow(atom.x) && is_narrow(atom.y) && is_narrow(atom.z)) return true;
  return !find_token_unlike_an_atom(lossless::atom_line(atom));
}

Range range_of(const Source& source, const RoundedNumber& number) {
  return source.range_of(tokens_of(source.content(number.line))[number.token]);
}

}  // namespace kelp::input::quill::lint
