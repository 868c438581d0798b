#include "kelp/input/quill/reader.hpp"

#include <optional>
#include <string>
#include <vector>

#include "core/arguments.hpp"
#include "core/bindings.hpp"
#include "core/handles.hpp"
#include "kelp/input/quill/lines.hpp"
#include "reader/diagnostics.hpp"

namespace kelp::input::quill::python {

namespace {

/// Returns a line, or None, and a message for each warning.
py::list warnings_of(const std::vector<std::string>& diagnostics) {
  py::list warnings(diagnostics.size());
  for (std::size_t i = 0; i < diagnostics.size(); ++i) {
    const DiagnosticParts parts = split_diagnostic(diagnostics[i]);
    warnings[i] = py::make_tuple(parts.line, to_python(parts.message));
  }
  return warnings;
}

/// Returns the members of a result, in their order.
py::tuple to_tuple(ParseResult result) {
  py::list warnings = warnings_of(result.warnings);
  return py::make_tuple(new_document(std::move(result.input)), result.ok, to_python(result.error),
                        std::move(warnings));
}

py::list to_tuples(const std::vector<LineRecord>& lines) {
  py::list tuples(lines.size());
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const LineRecord& line = lines[i];
    tuples[i] = py::make_tuple(static_cast<int>(line.role), line.index, line.offset, line.length,
                               line.terminator_length);
  }
  return tuples;
}

py::tuple parse(const Source& source) {
  return to_tuple([&] {
    const py::gil_scoped_release release;
    return parse_string(source.text);
  }());
}

py::tuple parse_path(const std::string& path) {
  return to_tuple([&] {
    const py::gil_scoped_release release;
    return parse_file(path);
  }());
}

py::tuple parse_with_lines(const Source& source) {
  ParsedLines parsed = [&] {
    const py::gil_scoped_release release;
    return parse_lines(source.text);
  }();
  return py::make_tuple(to_tuple(std::move(parsed.result)), to_tuples(parsed.lines));
}

}  // namespace

void bind_reader(py::module_& module) {
  module.def("parse_string", &parse);
  module.def("parse_file", &parse_path);
  module.def("parse_lines", &parse_with_lines);
}

}  // namespace kelp::input::quill::python
