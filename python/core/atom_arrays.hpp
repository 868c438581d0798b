#ifndef KELP_INPUT_QUILL_PYTHON_ATOM_ARRAYS_HPP
#define KELP_INPUT_QUILL_PYTHON_ATOM_ARRAYS_HPP

#include <pybind11/pybind11.h>

#include <vector>

#include "core/arguments.hpp"
#include "kelp/input/quill/document.hpp"

// Atoms as arrays and lists. The bytes of an array are a `bytearray`, which NumPy takes over
// without a copy, so that nothing here needs NumPy.

namespace kelp::input::quill::python {

/// Returns three doubles for each atom.
py::bytearray positions_of(const std::vector<AtomRecord>& atoms);

/// Returns the atomic number of each atom as a 64-bit integer, and 0 for a symbol that is not an
/// element's.
py::bytearray numbers_of(const std::vector<AtomRecord>& atoms);

py::list symbols_of(const std::vector<AtomRecord>& atoms);

/// Makes atoms of symbols and three doubles for each.
std::vector<AtomRecord> atoms_from(std::vector<Text> symbols, const py::buffer& positions);

}  // namespace kelp::input::quill::python

#endif  // KELP_INPUT_QUILL_PYTHON_ATOM_ARRAYS_HPP
