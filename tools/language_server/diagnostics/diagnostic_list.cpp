#include "language_server/diagnostics/diagnostic_list.hpp"

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

#include "lint/rule.hpp"
#include "lint/wording.hpp"
#include "quill-inp/findings/more_findings.hpp"
#include "quill-inp/text/terminal_text.hpp"

namespace kelp::input::quill::language_server {

namespace {

constexpr int unnecessary = 1;
constexpr const char* source = "quill-inp";

/// The numbers of the protocol.
int number_of(lint::Severity severity) {
  if (severity == lint::Severity::Error) return 1;
  return severity == lint::Severity::Warning ? 2 : 3;
}

std::string message_of(const lint::Finding& finding) {
  const lint::FindingWords words = lint::words_of(finding);
  return tool::shown_on_one_line(words.message) + "\n" + std::string(lint::advice_label) +
         tool::shown_on_one_line(words.advice);
}

/// Returns where the last finding with a code is; there is one.
lint::Range last_range_of(std::string_view code, const lint::Findings& findings) {
  return std::find_if(findings.rbegin(), findings.rend(),
                      [&](const lint::Finding& finding) { return finding.code == code; })
      ->range;
}

Json related_places(const lint::Finding& finding, const Snapshot& snapshot) {
  Json places = Json::array();
  for (const lint::RelatedPlace& place : finding.related) {
    const Json range = to_json(snapshot.position_range_of(place.range));
    places.push_back(
        {{"location", {{"uri", snapshot.uri()}, {"range", range}}}, {"message", place.role}});
  }
  return places;
}

}  // namespace

Json diagnostic_of(const lint::Finding& finding, const Snapshot& snapshot,
                   const ClientAbilities& client, const Pages& pages) {
  Json diagnostic = {
      {"range", to_json(snapshot.position_range_of(finding.range))},
      {"severity", number_of(lint::find_rule(finding.code)->severity)},
      {"code", finding.code},
      {"source", source},
      {"message", message_of(finding)},
  };
  const std::string page =
      client.has_code_links ? page_address(finding.code, pages) : std::string();
  if (!page.empty()) diagnostic["codeDescription"] = {{"href", page}};
  if (client.has_unnecessary_tag && lint::points_at_text_without_effect(finding.code))
    diagnostic["tags"] = Json::array({unnecessary});
  if (client.has_related_places && !finding.related.empty())
    diagnostic["relatedInformation"] = related_places(finding, snapshot);
  return diagnostic;
}

Json diagnostic_list(const lint::FirstFindings& found, const Snapshot& snapshot,
                     const ClientAbilities& client, const Pages& pages) {
  Json list = Json::array();
  for (const lint::Finding& finding : found.findings)
    list.push_back(diagnostic_of(finding, snapshot, client, pages));
  for (const auto& [code, count] : found.more) {
    const Json range = to_json(snapshot.position_range_of(last_range_of(code, found.findings)));
    list.push_back({{"range", range},
                    {"severity", number_of(lint::Severity::Info)},
                    {"source", source},
                    {"message", tool::words_of_more(code, count)}});
  }
  return list;
}

}  // namespace kelp::input::quill::language_server
