#include "lint/close_atoms.hpp"

#include "lint/checks/checks.hpp"

namespace kelp::input::quill::lint {

namespace {

constexpr double least_distance = 0.3;  // in the unit of the file; the shortest bond has 0.74 Å

}  // namespace

Findings check_too_close_atoms(const Source& source) {
  Findings findings;
  const std::vector<std::size_t>& lines = source.atom_lines();
  for (const ClosePair& pair : find_close_atoms(source.input().geometry.atoms, least_distance)) {
    findings.push_back({source.range_of(source.trimmed(lines[pair.second])),
                        {count_fact("first", pair.first + 1),
                         count_fact("second", pair.second + 1),
                         {"distance", pair.distance}},
                        {{source.range_of(source.trimmed(lines[pair.first])), "the other atom"}}});
  }
  return findings;
}

}  // namespace kelp::input::quill::lint
