#ifndef KELP_INPUT_QUILL_TOOL_FORMATS_COMPOSITION_HPP
#define KELP_INPUT_QUILL_TOOL_FORMATS_COMPOSITION_HPP

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "kelp/input/quill/document.hpp"

namespace kelp::input::quill::tool {

/// Symbols and how many atoms have them.
using Composition = std::vector<std::pair<std::string, std::size_t>>;

/// Returns how many atoms of each element there are, in the Hill order: carbon, hydrogen, then the
/// others sorted by the bytes of their symbols; without carbon, all of them sorted. Symbols that
/// are not those of elements are counted in the same way.
Composition hill_composition(const std::vector<AtomRecord>& atoms);

/// Returns the composition as a formula, "C2H6O"; no atoms give the empty text.
std::string to_formula(const Composition& composition);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_FORMATS_COMPOSITION_HPP
