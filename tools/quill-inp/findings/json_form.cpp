#include "quill-inp/findings/json_form.hpp"

#include <string_view>

#include "lint/lint.hpp"
#include "lint/wording.hpp"

namespace kelp::input::quill::tool {

namespace {

constexpr auto one_line = JsonWriter::Layout::OneLine;

void write_count(JsonWriter& json, std::string_view name, std::size_t count) {
  json.member(name).integer(static_cast<std::int64_t>(count));
}

struct WriteFact {
  JsonWriter& json;

  void operator()(std::int64_t number) const { json.integer(number); }
  void operator()(double number) const { json.number(number); }
  void operator()(const std::string& text) const { json.text(text); }
};

void write_range(JsonWriter& json, const lint::Range& range, const std::vector<LineRecord>& lines) {
  const lint::TextPlace place = lint::place_of(range.offset, lines);
  write_count(json, "line", place.line);
  write_count(json, "column", place.column);
  write_count(json, "offset", range.offset);
  write_count(json, "length", range.length);
}

void write_facts(JsonWriter& json, const std::vector<lint::Fact>& facts) {
  json.member("facts").begin_object(one_line);
  for (const lint::Fact& fact : facts) {
    json.member(fact.name);
    std::visit(WriteFact{json}, fact.value);
  }
  json.end_object();
}

void write_related(JsonWriter& json, const lint::Finding& finding,
                   const std::vector<LineRecord>& lines) {
  json.member("related").begin_list(one_line);
  for (const lint::RelatedPlace& place : finding.related) {
    json.begin_object(one_line);
    json.member("role").text(place.role);
    write_range(json, place.range, lines);
    json.end_object();
  }
  json.end_list();
}

void write_mend(JsonWriter& json, const lint::Finding& finding) {
  json.member("fix");
  if (!finding.mend) {
    json.null();
    return;
  }
  json.begin_object(one_line);
  json.member("safe").truth(finding.mend->is_safe);
  json.member("edits").begin_list(one_line);
  for (const lint::ByteEdit& edit : finding.mend->edits) {
    json.begin_object(one_line);
    write_count(json, "offset", edit.range.offset);
    write_count(json, "length", edit.range.length);
    json.member("text").text(edit.replacement);
    json.end_object();
  }
  json.end_list();
  json.end_object();
}

void write_finding(JsonWriter& json, const lint::Finding& finding,
                   const std::vector<LineRecord>& lines) {
  const lint::Rule& rule = *lint::find_rule(finding.code);
  const lint::FindingWords words = lint::words_of(finding);
  json.begin_object(one_line);
  json.member("code").text(finding.code);
  json.member("severity").text(lint::name_of(rule.severity));
  json.member("group").text(lint::name_of(rule.group));
  write_range(json, finding.range, lines);
  json.member("message").text(words.message);
  json.member("advice").text(words.advice);
  write_facts(json, finding.facts);
  write_related(json, finding, lines);
  write_mend(json, finding);
  json.end_object();
}

}  // namespace

void write_json_form(const FileReport& report, const JsonWriter::Sink& sink) {
  JsonWriter json(sink);
  json.begin_object(one_line);
  json.member("file").text(report.name);
  json.member("findings").begin_list(one_line);
  for (const lint::Finding& finding : report.findings)
    write_finding(json, finding, report.read.lines);
  json.end_list();
  json.member("more").begin_object(one_line);
  for (const auto& [code, count] : report.more) write_count(json, code, count);
  json.end_object();
  json.end_object();
  json.finish();
}

}  // namespace kelp::input::quill::tool
