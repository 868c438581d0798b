#include "lint/close_atoms.hpp"

#include "lint/checks/checks.hpp"

namespace kelp::input::quill::lint {

namespace {

constexpr double least_distance = 0.3;  // in the unit of the file; the shortest bond has 0.74 Å

}  // namespace

void check_too_close_atoms(const Source& source, Collector& findings) {
  const std::vector<std::size_t>& lines = source.atom_lines();
  const auto add = [&](const ClosePair& pair) {
    findings.add({source.range_of(source.trimmed(lines[pair.second])),
                  {count_fact("first", pair.first + 1),
                   count_fact("second", pair.second + 1),
                   {"distance", pair.distance}},
                  {{source.range_of(source.trimmed(lines[pair.first])), "the other atom"}}});
  };
  for_each_close_pair(source.input().geometry.atoms, least_distance, add);
}

}  // namespace kelp::input::quill::lint
