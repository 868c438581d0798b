#ifndef KELP_INPUT_QUILL_PYTHON_SEALED_CLASS_HPP
#define KELP_INPUT_QUILL_PYTHON_SEALED_CLASS_HPP

#include <pybind11/pybind11.h>

#include <memory>

namespace kelp::input::quill::python {

namespace py = pybind11;

/// Declares a class of which only C++ makes objects. Otherwise `Class.__new__(Class)` and a class
/// derived from it would give objects without a call of a constructor, and using one would read
/// memory that was never written.
template <typename T>
py::class_<T, std::shared_ptr<T>> sealed_class(py::module_& module, const char* name) {
  py::class_<T, std::shared_ptr<T>> declared(
      module, name, py::is_final(), py::metaclass(reinterpret_cast<PyObject*>(&PyType_Type)));
  reinterpret_cast<PyTypeObject*>(declared.ptr())->tp_new = nullptr;
  return declared;
}

}  // namespace kelp::input::quill::python

#endif  // KELP_INPUT_QUILL_PYTHON_SEALED_CLASS_HPP
