#ifndef KELP_INPUT_QUILL_BENCH_SUPPORT_INPUTS_HPP
#define KELP_INPUT_QUILL_BENCH_SUPPORT_INPUTS_HPP

#include <cstddef>

#include "kelp/input/quill/document.hpp"

// The documents that are timed, the same in every run. Their texts are what to_string() returns.

namespace kelp::input::quill::bench {

/// Two header lines, charge and multiplicity, and this many atoms of common elements, with
/// coordinates between -50 and 50.
QuillInput molecule(std::size_t atoms);

/// An input with at least this many atoms: copies of those of `molecule`, 12 apart in each
/// direction, so that only atoms of one copy are near each other.
QuillInput side_by_side(const QuillInput& molecule, std::size_t atoms);

/// This many header lines, in turn flags, assignments and parameter lists, and one atom.
QuillInput header_heavy(std::size_t lines);

/// One atom and this many post-processing lines, of each kind in turn.
QuillInput post_heavy(std::size_t lines);

/// Only constraints and scans, this many, of each kind in turn.
QuillInput constraints_and_scans(std::size_t lines);

/// Two header lines and this many references to XYZ files.
QuillInput references(std::size_t files);

/// An input as people write it by hand: ten header lines, one of which is "opt" with the parameter
/// "maxiter", and thirty atoms.
QuillInput small_job();

}  // namespace kelp::input::quill::bench

#endif  // KELP_INPUT_QUILL_BENCH_SUPPORT_INPUTS_HPP
