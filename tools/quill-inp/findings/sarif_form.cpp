#include "quill-inp/findings/sarif_form.hpp"

#include <algorithm>
#include <string>

#include "lint/lint.hpp"
#include "lint/wording.hpp"
#include "quill-inp/findings/more_findings.hpp"
#include "quill-inp/text/character_index.hpp"
#include "quill-inp/text/percent_encoding.hpp"
#include "quill-inp/text/terminal_text.hpp"

namespace kelp::input::quill::tool {

namespace {

constexpr auto one_line = JsonWriter::Layout::OneLine;
constexpr auto lines = JsonWriter::Layout::Lines;

void write_count(JsonWriter& json, std::string_view name, std::size_t count) {
  json.member(name).integer(static_cast<std::int64_t>(count));
}

std::string_view level_of(lint::Severity severity) {
  if (severity == lint::Severity::Error) return "error";
  return severity == lint::Severity::Warning ? "warning" : "note";
}

/// An object with one text, as messages and descriptions are.
void write_message(JsonWriter& json, std::string_view name, std::string_view text) {
  json.member(name).begin_object(one_line);
  json.member("text").text(shown_on_one_line(text));
  json.end_object();
}

/// Returns the address of a path: relative, or beginning with "file://" for an absolute path.
std::string address_of(std::string_view path) {
  return (path.substr(0, 1) == "/" ? "file://" : "") + percent_encoded(path);
}

/// A report, and where the characters of its text are.
struct CountedReport {
  const FileReport& report;
  CharacterIndex characters;
};

/// Returns the column of a byte in code points, counted from 1. A place in the middle of a
/// character counts as after it.
std::size_t character_column(const CountedReport& counted, std::size_t line, std::size_t offset) {
  const std::size_t start = counted.report.read.lines[line - 1].offset;
  return 1 + counted.characters.count_before(offset) - counted.characters.count_before(start);
}

void write_region(JsonWriter& json, std::string_view name, const CountedReport& counted,
                  const lint::Range& range) {
  json.member(name).begin_object(one_line);
  const std::vector<LineRecord>& records = counted.report.read.lines;
  if (!records.empty()) {
    const lint::TextPlace first = lint::place_of(range.offset, records);
    const lint::TextPlace last = lint::place_of(range.end(), records);
    write_count(json, "startLine", first.line);
    write_count(json, "startColumn", character_column(counted, first.line, range.offset));
    write_count(json, "endLine", last.line);
    write_count(json, "endColumn", character_column(counted, last.line, range.end()));
  }
  write_count(json, "byteOffset", range.offset);
  write_count(json, "byteLength", range.length);
  json.end_object();
}

void write_artifact(JsonWriter& json, const FileReport& report) {
  json.member("artifactLocation").begin_object(one_line);
  json.member("uri").text(address_of(report.name));
  json.end_object();
}

void write_location(JsonWriter& json, const CountedReport& counted, const lint::Range& range,
                    std::string_view role) {
  json.begin_object(one_line);
  json.member("physicalLocation").begin_object(one_line);
  write_artifact(json, counted.report);
  write_region(json, "region", counted, range);
  json.end_object();
  if (!role.empty()) write_message(json, "message", role);
  json.end_object();
}

void write_replacement(JsonWriter& json, const CountedReport& counted, const lint::ByteEdit& edit) {
  json.begin_object(one_line);
  write_region(json, "deletedRegion", counted, edit.range);
  json.member("insertedContent").begin_object(one_line);
  json.member("text").text(edit.replacement);
  json.end_object();
  json.end_object();
}

void write_fix(JsonWriter& json, const CountedReport& counted, const lint::Finding& finding) {
  json.member("fixes").begin_list(one_line);
  json.begin_object(one_line);
  write_message(json, "description", lint::words_of(finding).advice);
  json.member("artifactChanges").begin_list(one_line);
  json.begin_object(one_line);
  write_artifact(json, counted.report);
  json.member("replacements").begin_list(one_line);
  for (const lint::ByteEdit& edit : finding.mend->edits) write_replacement(json, counted, edit);
  json.end_list();
  json.end_object();
  json.end_list();
  json.end_object();
  json.end_list();
}

void write_result(JsonWriter& json, const CountedReport& counted, const lint::Finding& finding) {
  const lint::Rule* rule = lint::find_rule(finding.code);
  json.begin_object(one_line);
  json.member("ruleId").text(rule->code);
  write_count(json, "ruleIndex", static_cast<std::size_t>(rule - lint::all_rules().begin()));
  json.member("level").text(level_of(rule->severity));
  write_message(json, "message", lint::words_of(finding).message);
  json.member("locations").begin_list(one_line);
  write_location(json, counted, finding.range, {});
  json.end_list();
  if (!finding.related.empty()) {
    json.member("relatedLocations").begin_list(one_line);
    for (const lint::RelatedPlace& place : finding.related)
      write_location(json, counted, place.range, place.role);
    json.end_list();
  }
  if (finding.mend) write_fix(json, counted, finding);
  json.end_object();
}

void write_rule(JsonWriter& json, const lint::Rule& rule) {
  json.begin_object(one_line);
  json.member("id").text(rule.code);
  write_message(json, "shortDescription", rule.title);
  json.member("defaultConfiguration").begin_object(one_line);
  json.member("level").text(level_of(rule.severity));
  json.end_object();
  json.member("properties").begin_object(one_line);
  json.member("tags").begin_list(one_line);
  json.text(lint::name_of(rule.group));
  json.end_list();
  json.end_object();
  json.end_object();
}

void write_tool(JsonWriter& json, std::string_view version) {
  json.member("tool").begin_object(lines);
  json.member("driver").begin_object(lines);
  json.member("name").text("quill-inp");
  json.member("version").text(version);
  json.member("rules").begin_list(lines);
  for (const lint::Rule& rule : lint::all_rules()) write_rule(json, rule);
  json.end_list();
  json.end_object();
  json.end_object();
}

void write_more(JsonWriter& json, const FileReport& report) {
  for (const auto& [code, count] : report.more) {
    const lint::Rule* rule = lint::find_rule(code);
    json.begin_object(one_line);
    json.member("level").text(level_of(rule->severity));
    write_message(json, "message", words_of_more(code, count));
    json.member("associatedRule").begin_object(one_line);
    json.member("id").text(code);
    json.end_object();
    json.member("locations").begin_list(one_line);
    json.begin_object(one_line);
    json.member("physicalLocation").begin_object(one_line);
    write_artifact(json, report);
    json.end_object();
    json.end_object();
    json.end_list();
    json.end_object();
  }
}

/// A log has no place for the number of results that it leaves out but the notifications.
void write_invocation(JsonWriter& json, const std::vector<FileReport>& reports) {
  const bool has_more = std::any_of(reports.begin(), reports.end(),
                                    [](const FileReport& report) { return !report.more.empty(); });
  if (!has_more) return;
  json.member("invocations").begin_list(lines);
  json.begin_object(lines);
  json.member("executionSuccessful").truth(true);
  json.member("toolExecutionNotifications").begin_list(lines);
  for (const FileReport& report : reports) write_more(json, report);
  json.end_list();
  json.end_object();
  json.end_list();
}

}  // namespace

void write_sarif_form(const std::vector<FileReport>& reports, std::string_view version,
                      const JsonWriter::Sink& sink) {
  JsonWriter json(sink);
  json.begin_object(lines);
  json.member("$schema").text(
      "https://docs.oasis-open.org/sarif/sarif/v2.1.0/errata01/os/schemas/sarif-schema-2.1.0.json");
  json.member("version").text("2.1.0");
  json.member("runs").begin_list(lines);
  json.begin_object(lines);
  write_tool(json, version);
  json.member("columnKind").text("unicodeCodePoints");
  write_invocation(json, reports);
  json.member("results").begin_list(lines);
  for (const FileReport& report : reports) {
    const CountedReport counted{report, CharacterIndex(report.read.text)};
    for (const lint::Finding& finding : report.findings) write_result(json, counted, finding);
  }
  json.end_list();
  json.end_object();
  json.end_list();
  json.end_object();
  json.finish();
}

}  // namespace kelp::input::quill::tool
