#include <array>
#include <string_view>

#include "quill-inp/summary/input_difference.hpp"

namespace kelp::input::quill::tool {

namespace {

using Layout = JsonWriter::Layout;

/// In the order of the enumeration.
constexpr std::array<std::string_view, 12> kind_names = {
    "command",  "parameter", "parameter_order", "command_order", "charge", "multiplicity",
    "geometry", "atom",      "element",         "position",      "path",   "post_line"};

void write_text(JsonWriter& json, std::string_view name, const std::optional<std::string>& text) {
  if (text) json.member(name).text(*text);
}

void write_one(JsonWriter& json, const InputDifference& difference) {
  json.begin_object(Layout::OneLine);
  json.member("kind").text(kind_names.at(static_cast<std::size_t>(difference.kind)));
  if (!difference.name.empty()) json.member("command").text(difference.name);
  if (difference.number)
    json.member("number").integer(static_cast<std::int64_t>(*difference.number));
  write_text(json, "before", difference.before);
  write_text(json, "after", difference.after);
  if (difference.distance) json.member("distance").number(*difference.distance);
  json.end_object();
}

}  // namespace

void write_difference_json(const std::string& before, const std::string& after,
                           const InputDifferences& differences, const JsonWriter::Sink& sink) {
  JsonWriter json(sink);
  json.begin_object(Layout::OneLine);
  json.member("before").text(before);
  json.member("after").text(after);
  json.member("count").integer(static_cast<std::int64_t>(differences.count));
  json.member("differences").begin_list(Layout::OneLine);
  for (const InputDifference& difference : differences.first) write_one(json, difference);
  json.end_list();
  json.end_object();
  json.finish();
}

}  // namespace kelp::input::quill::tool
