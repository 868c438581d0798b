#ifndef KELP_INPUT_QUILL_TOOL_SUMMARY_COMPOSITION_HPP
#define KELP_INPUT_QUILL_TOOL_SUMMARY_COMPOSITION_HPP

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "kelp/input/quill/document.hpp"

namespace kelp::input::quill::tool {

/// Symbols and how many atoms have them.
using Composition = std::vector<std::pair<std::string, std::size_t>>;

/// Returns what the atoms are made of in the order of Hill: carbon, hydrogen, then the others by
/// the bytes of their symbols; without carbon all of them by their symbols. Symbols that are no
/// element are counted like any other.
Composition hill_composition(const std::vector<AtomRecord>& atoms);

/// Returns the composition as a formula, "C2H6O"; no atoms give the empty text.
std::string to_formula(const Composition& composition);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_SUMMARY_COMPOSITION_HPP
