#include "web/account_json.hpp"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "kelp/input/quill/lossless/wording.hpp"
#include "reader/diagnostics.hpp"

namespace kelp::input::quill::web {

namespace {

using Layout = tool::JsonWriter::Layout;

/// In the order of the enumeration.
constexpr std::array<std::string_view, 8> role_names = {
    "blank",     "command",    "charge and multiplicity", "atom",
    "reference", "trajectory", "post-processing",         "dropped"};

void write_number(tool::JsonWriter& json, std::string_view name,
                  const std::optional<std::size_t>& number) {
  json.member(name);
  if (number) {
    json.integer(static_cast<std::int64_t>(*number));
  } else {
    json.null();
  }
}

void write_line(tool::JsonWriter& json, const LineRecord& line, const QuillInput& input) {
  json.begin_object(Layout::OneLine);
  json.member("role").text(role_names[static_cast<std::size_t>(line.role)]);
  write_number(json, "index", line.index);
  json.member("words").text(lossless::describe({line.role, line.index}, input));
  write_number(json, "offset", line.offset);
  write_number(json, "length", line.length);
  json.end_object();
}

void write_message(tool::JsonWriter& json, const std::optional<std::size_t>& line,
                   std::string_view message) {
  json.begin_object(Layout::OneLine);
  write_number(json, "line", line);
  json.member("message").text(message);
  json.end_object();
}

void write_warnings(tool::JsonWriter& json, const std::vector<std::string>& warnings) {
  json.member("warnings").begin_list(Layout::Lines);
  for (const std::string& warning : warnings) {
    const DiagnosticParts parts = split_diagnostic(warning);
    write_message(json, parts.line, parts.message);
  }
  json.end_list();
}

}  // namespace

void write_account(const ExaminedText& examined, const tool::JsonWriter::Sink& sink) {
  tool::JsonWriter json(sink);
  json.begin_object(Layout::Lines);
  json.member("lines").begin_list(Layout::Lines);
  for (const LineRecord& line : examined.read.lines)
    write_line(json, line, examined.read.result.input);
  json.end_list();
  write_warnings(json, examined.read.result.warnings);
  json.member("losses").begin_list(Layout::Lines);
  for (const tool::LossWords& loss : examined.losses) write_message(json, loss.line, loss.text);
  json.end_list();
  json.end_object();
  json.finish();
}

}  // namespace kelp::input::quill::web
