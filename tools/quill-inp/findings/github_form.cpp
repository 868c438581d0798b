#include "quill-inp/findings/github_form.hpp"

#include <string_view>

#include "lint/lint.hpp"
#include "lint/wording.hpp"
#include "quill-inp/findings/more_findings.hpp"
#include "quill-inp/text/terminal_text.hpp"

namespace kelp::input::quill::tool {

namespace {

std::string_view command_of(lint::Severity severity) {
  if (severity == lint::Severity::Error) return "error";
  return severity == lint::Severity::Warning ? "warning" : "notice";
}

/// Escapes what would end the command or one of its properties.
std::string escaped(std::string_view text, bool is_property) {
  std::string out;
  for (const char c : text) {
    if (c == '%') {
      out += "%25";
    } else if (is_property && c == ':') {
      out += "%3A";
    } else if (is_property && c == ',') {
      out += "%2C";
    } else {
      out += c;
    }
  }
  return out;
}

}  // namespace

std::string github_form(const FileReport& report) {
  std::string text;
  for (const lint::Finding& finding : report.findings) {
    const lint::TextPlace place = lint::place_of(finding.range.offset, report.read.lines);
    text += "::" + std::string(command_of(lint::find_rule(finding.code)->severity)) +
            " file=" + escaped(shown_on_one_line(report.name), true) +
            ",line=" + std::to_string(place.line) + ",col=" + std::to_string(place.column) +
            ",title=" + std::string(finding.code) +
            "::" + escaped(shown_on_one_line(lint::words_of(finding).message), false) + "\n";
  }
  for (const auto& [code, count] : report.more) {
    text += "::" + std::string(command_of(lint::find_rule(code)->severity)) +
            " file=" + escaped(shown_on_one_line(report.name), true) +
            ",title=" + std::string(code) + "::" + words_of_more(code, count) + "\n";
  }
  return text;
}

}  // namespace kelp::input::quill::tool
