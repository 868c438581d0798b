#include "lint/lint.hpp"

#include <string>
#include <vector>

#include "core/arguments.hpp"
#include "core/bindings.hpp"
#include "lint/rule.hpp"
#include "lint/selection.hpp"
#include "lint/wording.hpp"

namespace kelp::input::quill::python {

namespace {

/// Returns code, severity, line, column, message and advice of a finding.
py::tuple to_tuple(const lint::Finding& finding, const std::vector<LineRecord>& lines) {
  const lint::TextPlace place = lint::place_of(finding.range.offset, lines);
  const lint::FindingWords words = lint::words_of(finding);
  return py::make_tuple(to_python(finding.code),
                        static_cast<int>(lint::find_rule(finding.code)->severity), place.line,
                        place.column, to_python(words.message), to_python(words.advice));
}

py::list find_all(const Source& source, std::vector<Text> select, std::vector<Text> ignore,
                  std::vector<Text> known_commands) {
  const lint::Selection selection{plain(std::move(select)), plain(std::move(ignore))};
  lint::Options options;
  options.known_commands = plain(std::move(known_commands));
  lossless::ReadText read;
  lint::Findings findings;
  {
    const py::gil_scoped_release release;
    read = lossless::read_text(std::string(source.text));
    findings = lint::find_all(read, options);
    lint::keep_selected(findings, selection);
  }
  py::list tuples;
  for (const lint::Finding& finding : findings) tuples.append(to_tuple(finding, read.lines));
  return tuples;
}

}  // namespace

void bind_lint(py::module_& module) {
  module.def("lint", &find_all);
  module.def("is_rule_or_group",
             [](const Text& name) { return lint::is_rule_or_group(name.bytes); });
}

}  // namespace kelp::input::quill::python
