#ifndef KELP_INPUT_QUILL_LINT_POST_FIELDS_HPP
#define KELP_INPUT_QUILL_LINT_POST_FIELDS_HPP

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

#include "lint/source.hpp"

namespace kelp::input::quill::lint {

/// An atom number of a constraint or a scan, and where it is.
struct AtomNumber {
  std::int32_t number = 0;
  std::string_view token = {};
  std::size_t command = 0;  // the index of the post-processing line in the document
};

/// Returns the atom numbers of post-processing line number `command`; none for other kinds.
std::vector<AtomNumber> atom_numbers_of(const Source& source, std::size_t command);

/// Passes on the atom numbers of all lines, in their order.
void for_each_atom_number(const Source& source, const std::function<void(const AtomNumber&)>& use);

}  // namespace kelp::input::quill::lint

#endif  // KELP_INPUT_QUILL_LINT_POST_FIELDS_HPP
