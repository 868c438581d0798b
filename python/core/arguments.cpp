#include "core/arguments.hpp"

#include <limits>

namespace kelp::input::quill::python {

namespace {

[[noreturn]] void throw_wrong_type(const char* expected, py::handle object) {
  throw py::type_error(std::string("expected ") + expected + ", not " +
                       Py_TYPE(object.ptr())->tp_name);
}

/// Returns the bytes of a `str`. Those of one without lone surrogates are kept in the object
/// itself.
Source bytes_of_str(py::handle object) {
  Py_ssize_t size = 0;
  if (const char* text = PyUnicode_AsUTF8AndSize(object.ptr(), &size))
    return {py::reinterpret_borrow<py::object>(object), {text, static_cast<std::size_t>(size)}};
  PyErr_Clear();
  auto bytes = py::reinterpret_steal<py::object>(
      PyUnicode_AsEncodedString(object.ptr(), "utf-8", "surrogateescape"));
  if (!bytes) throw py::error_already_set();
  const std::string_view view(PyBytes_AS_STRING(bytes.ptr()),
                              static_cast<std::size_t>(PyBytes_GET_SIZE(bytes.ptr())));
  return {std::move(bytes), view};
}

/// Returns an integer object for whatever Python takes as an index, NumPy's integers included.
py::object index_of(py::handle object) {
  if (PyIndex_Check(object.ptr()) == 0) throw_wrong_type("int", object);
  auto number = py::reinterpret_steal<py::object>(PyNumber_Index(object.ptr()));
  if (!number) throw py::error_already_set();
  return number;
}

[[noreturn]] void throw_out_of_range(const py::object& number, const char* range) {
  PyErr_Format(PyExc_OverflowError, "%R is not %s", number.ptr(), range);
  throw py::error_already_set();
}

}  // namespace

Text text_from(py::handle object) {
  if (PyUnicode_Check(object.ptr()) == 0) throw_wrong_type("str", object);
  return {std::string(bytes_of_str(object).text)};
}

Source source_from(py::handle object) {
  if (PyUnicode_Check(object.ptr()) != 0) return bytes_of_str(object);
  if (PyBytes_Check(object.ptr()) == 0) throw_wrong_type("str or bytes", object);
  return {
      py::reinterpret_borrow<py::object>(object),
      {PyBytes_AS_STRING(object.ptr()), static_cast<std::size_t>(PyBytes_GET_SIZE(object.ptr()))}};
}

Whole whole_from(py::handle object) {
  const py::object number = index_of(object);
  int overflow = 0;
  const long long value = PyLong_AsLongLongAndOverflow(number.ptr(), &overflow);
  if (overflow != 0 || value < std::numeric_limits<std::int32_t>::min() ||
      value > std::numeric_limits<std::int32_t>::max())
    throw_out_of_range(number, "a 32-bit integer");
  return {static_cast<std::int32_t>(value)};
}

Count count_from(py::handle object) {
  const py::object number = index_of(object);
  int overflow = 0;
  const long long value = PyLong_AsLongLongAndOverflow(number.ptr(), &overflow);
  if (overflow != 0 || value < 0) throw_out_of_range(number, "a number from 0 to 2**63 - 1");
  return {static_cast<std::uint64_t>(value)};
}

Real real_from(py::handle object) {
  if (PyUnicode_Check(object.ptr()) != 0) throw_wrong_type("float", object);
  const double value = PyFloat_AsDouble(object.ptr());
  if (value == -1.0 && PyErr_Occurred() != nullptr) throw py::error_already_set();
  return {value};
}

py::object to_python(std::string_view text) {
  auto object = py::reinterpret_steal<py::object>(
      PyUnicode_DecodeUTF8(text.data(), static_cast<Py_ssize_t>(text.size()), "surrogateescape"));
  if (!object) throw py::error_already_set();
  return object;
}

std::optional<std::string> plain(std::optional<Text> text) {
  if (!text) return std::nullopt;
  return std::move(text->bytes);
}

std::vector<std::string> plain(std::vector<Text> texts) {
  std::vector<std::string> result;
  result.reserve(texts.size());
  for (Text& text : texts) result.push_back(std::move(text.bytes));
  return result;
}

std::vector<std::int32_t> plain(const std::vector<Whole>& numbers) {
  std::vector<std::int32_t> result;
  result.reserve(numbers.size());
  for (const Whole number : numbers) result.push_back(number.value);
  return result;
}

std::optional<Text> to_text(const std::optional<std::string>& text) {
  if (!text) return std::nullopt;
  return Text{*text};
}

std::vector<Text> to_texts(const std::vector<std::string>& texts) {
  std::vector<Text> result;
  result.reserve(texts.size());
  for (const std::string& text : texts) result.push_back({text});
  return result;
}

}  // namespace kelp::input::quill::python
