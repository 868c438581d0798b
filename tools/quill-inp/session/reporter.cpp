#include "quill-inp/session/reporter.hpp"

#include "quill-inp/text/colors.hpp"
#include "quill-inp/text/terminal_text.hpp"
#include "reader/diagnostics.hpp"

namespace kelp::input::quill::tool {

Reporter::Reporter(std::ostream& stream, bool is_quiet, bool is_colored)
    : stream_(stream), is_quiet_(is_quiet), is_colored_(is_colored) {}

void Reporter::error(const Place& place, std::string_view message) {
  write(place, "error:", error_color, message);
}

void Reporter::warning(const Place& place, std::string_view message) {
  if (!is_quiet_) write(place, "warning:", warning_color, message);
}

void Reporter::note(const Place& place, std::string_view message) {
  if (!is_quiet_) write(place, "note:", note_color, message);
}

void Reporter::write(const Place& place, std::string_view severity, std::string_view color,
                     std::string_view message) {
  std::string text = shown_on_one_line(place.name);
  if (place.line) text += ":" + std::to_string(*place.line);
  text += ": ";
  text += colored(severity, color, is_colored_);
  text += ' ';
  text += shown_on_one_line(message);
  text += '\n';
  write(text);
}

void Reporter::write(std::string_view messages) {
  stream_.write(messages.data(), static_cast<std::streamsize>(messages.size()));
  stream_.flush();
}

void report_warnings(Reporter& reporter, const std::string& name, const ParseResult& result) {
  for (const std::string& text : result.warnings) {
    const DiagnosticParts warning = split_diagnostic(text);
    reporter.warning({name, warning.line}, warning.message);
  }
}

}  // namespace kelp::input::quill::tool
