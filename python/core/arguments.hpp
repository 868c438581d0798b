#ifndef KELP_INPUT_QUILL_PYTHON_ARGUMENTS_HPP
#define KELP_INPUT_QUILL_PYTHON_ARGUMENTS_HPP

#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// What is passed between Python and C++, with clear errors for what does not fit. Texts are any
// bytes in C++ and `str` in Python: bytes that are not UTF-8 become lone surrogates and are made of
// them again, as Python itself does it with names of files ("surrogateescape").

namespace kelp::input::quill::python {

namespace py = pybind11;

/// A text that is stored.
struct Text {
  std::string bytes;
};

/// A whole input, as `str` or `bytes`. The view is valid as long as the object.
struct Source {
  py::object owner;
  std::string_view text;
};

/// A 32-bit integer, a count or index from 0, and a floating-point number.
struct Whole {
  std::int32_t value = 0;
};
struct Count {
  std::uint64_t value = 0;
};
struct Real {
  double value = 0.0;
};

Text text_from(py::handle object);
Source source_from(py::handle object);
Whole whole_from(py::handle object);
Count count_from(py::handle object);
Real real_from(py::handle object);

py::object to_python(std::string_view text);

/// The plain values of arguments, for functions of the library.
std::optional<std::string> plain(std::optional<Text> text);
std::vector<std::string> plain(std::vector<Text> texts);
std::vector<std::int32_t> plain(const std::vector<Whole>& numbers);

/// The arguments for the interpreter.
std::optional<Text> to_text(const std::optional<std::string>& text);
std::vector<Text> to_texts(const std::vector<std::string>& texts);

}  // namespace kelp::input::quill::python

namespace pybind11::detail {

/// Converts an argument by a function that throws for what does not fit.
template <typename Argument, Argument (*Convert)(handle)>
struct argument_caster {
  PYBIND11_TYPE_CASTER(Argument, const_name("object"));

  bool load(handle object, bool /*implicit*/) {
    value = Convert(object);
    return true;
  }
};

template <>
struct type_caster<kelp::input::quill::python::Text>
    : argument_caster<kelp::input::quill::python::Text, kelp::input::quill::python::text_from> {
  static handle cast(const kelp::input::quill::python::Text& text, return_value_policy /*policy*/,
                     handle /*parent*/) {
    return kelp::input::quill::python::to_python(text.bytes).release();
  }
};

template <>
struct type_caster<kelp::input::quill::python::Source>
    : argument_caster<kelp::input::quill::python::Source, kelp::input::quill::python::source_from> {
};
template <>
struct type_caster<kelp::input::quill::python::Whole>
    : argument_caster<kelp::input::quill::python::Whole, kelp::input::quill::python::whole_from> {};
template <>
struct type_caster<kelp::input::quill::python::Count>
    : argument_caster<kelp::input::quill::python::Count, kelp::input::quill::python::count_from> {};
template <>
struct type_caster<kelp::input::quill::python::Real>
    : argument_caster<kelp::input::quill::python::Real, kelp::input::quill::python::real_from> {};

}  // namespace pybind11::detail

#endif  // KELP_INPUT_QUILL_PYTHON_ARGUMENTS_HPP
