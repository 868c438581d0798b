#include "core/atom_arrays.hpp"

#include <cstdint>
#include <cstring>

#include "kelp/chem/elements.hpp"

namespace kelp::input::quill::python {

namespace {

py::bytearray bytes_for(std::size_t size) {
  auto bytes = py::reinterpret_steal<py::bytearray>(
      PyByteArray_FromStringAndSize(nullptr, static_cast<Py_ssize_t>(size)));
  if (!bytes) throw py::error_already_set();
  return bytes;
}

}  // namespace

py::bytearray positions_of(const std::vector<AtomRecord>& atoms) {
  constexpr std::size_t row = 3 * sizeof(double);
  py::bytearray bytes = bytes_for(atoms.size() * row);
  char* out = PyByteArray_AS_STRING(bytes.ptr());
  for (const AtomRecord& atom : atoms) {
    const double coordinates[] = {atom.x, atom.y, atom.z};
    std::memcpy(out, coordinates, row);
    out += row;
  }
  return bytes;
}

py::bytearray numbers_of(const std::vector<AtomRecord>& atoms) {
  py::bytearray bytes = bytes_for(atoms.size() * sizeof(std::int64_t));
  char* out = PyByteArray_AS_STRING(bytes.ptr());
  for (const AtomRecord& atom : atoms) {
    const std::int64_t number = kelp::chem::elements::atomic_number_from_symbol(
                                    kelp::chem::elements::normalize_symbol(atom.symbol))
                                    .value_or(0);
    std::memcpy(out, &number, sizeof number);
    out += sizeof number;
  }
  return bytes;
}

py::list symbols_of(const std::vector<AtomRecord>& atoms) {
  py::list symbols(atoms.size());
  for (std::size_t i = 0; i < atoms.size(); ++i) symbols[i] = to_python(atoms[i].symbol);
  return symbols;
}

std::vector<AtomRecord> atoms_from(std::vector<Text> symbols, const py::buffer& positions) {
  const py::buffer_info info = positions.request();
  if (info.format != py::format_descriptor<double>::format() ||
      info.size != static_cast<py::ssize_t>(3 * symbols.size()))
    throw py::value_error("expected three doubles for each symbol");
  std::vector<AtomRecord> atoms;
  atoms.reserve(symbols.size());
  const double* coordinates = static_cast<const double*>(info.ptr);
  for (Text& symbol : symbols) {
    atoms.push_back({std::move(symbol.bytes), coordinates[0], coordinates[1], coordinates[2]});
    coordinates += 3;
  }
  return atoms;
}

}  // namespace kelp::input::quill::python
