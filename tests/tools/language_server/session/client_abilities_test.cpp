#include "language_server/session/client_abilities.hpp"

#include <gtest/gtest.h>

#include <string>

namespace kelp::input::quill::language_server {

namespace {

/// An ability, and the capabilities of a client that has it and no other.
struct Row {
  std::string name;
  bool ClientAbilities::*ability;
  std::string capabilities;
};

using Abilities = ClientAbilities;

const Row rows[] = {
    {"Markdown", &Abilities::has_markdown,
     R"({"textDocument":{"hover":{"contentFormat":["plaintext","markdown"]}}})"},
    {"Snippets", &Abilities::has_snippets,
     R"({"textDocument":{"completion":{"completionItem":{"snippetSupport":true}}}})"},
    {"NestedSymbols", &Abilities::has_nested_symbols,
     R"({"textDocument":{"documentSymbol":{"hierarchicalDocumentSymbolSupport":true}}})"},
    {"LineFoldingOnly", &Abilities::has_line_folding_only,
     R"({"textDocument":{"foldingRange":{"lineFoldingOnly":true}}})"},
    {"LiteralCodeActions", &Abilities::has_literal_code_actions,
     R"({"textDocument":{"codeAction":{"codeActionLiteralSupport":{}}}})"},
    {"Progress", &Abilities::has_progress, R"({"window":{"workDoneProgress":true}})"},
    {"Configuration", &Abilities::has_configuration, R"({"workspace":{"configuration":true}})"},
    {"Watchers", &Abilities::can_register_watchers,
     R"({"workspace":{"didChangeWatchedFiles":{"dynamicRegistration":true}}})"},
    {"RefreshedDiagnostics", &Abilities::can_refresh_diagnostics,
     R"({"workspace":{"diagnostics":{"refreshSupport":true}}})"},
    {"PulledDiagnostics", &Abilities::can_pull_diagnostics,
     R"({"textDocument":{"diagnostic":{}}})"},
    {"RelatedPlaces", &Abilities::has_related_places,
     R"({"textDocument":{"publishDiagnostics":{"relatedInformation":true}}})"},
    {"UnnecessaryTag", &Abilities::has_unnecessary_tag,
     R"({"textDocument":{"publishDiagnostics":{"tagSupport":{"valueSet":[2,1]}}}})"},
    {"CodeLinks", &Abilities::has_code_links,
     R"({"textDocument":{"publishDiagnostics":{"codeDescriptionSupport":true}}})"},
    {"ConfigurationEvents", &Abilities::has_configuration_events,
     R"({"workspace":{"didChangeConfiguration":{"dynamicRegistration":true}}})"},
    {"RefreshedHints", &Abilities::can_refresh_hints,
     R"({"workspace":{"inlayHint":{"refreshSupport":true}}})"},
    {"VersionedEdits", &Abilities::has_versioned_edits,
     R"({"workspace":{"workspaceEdit":{"documentChanges":true}}})"},
};

/// The names of all that a client with these capabilities can do.
std::string names_of_abilities(const std::string& capabilities) {
  const ClientAbilities client = abilities_of(Json::parse(capabilities));
  std::string names;
  for (const Row& row : rows) {
    if (client.*row.ability) names += (names.empty() ? "" : " ") + row.name;
  }
  return names;
}

class Ability : public testing::TestWithParam<Row> {};

TEST_P(Ability, IsThatOfOneCapability) {
  EXPECT_EQ(names_of_abilities(GetParam().capabilities), GetParam().name);
}

INSTANTIATE_TEST_SUITE_P(Table, Ability, testing::ValuesIn(rows),
                         [](const auto& row) { return row.param.name; });

TEST(Abilities, AreNotThoseOfCapabilitiesThatSayNo) {
  for (const std::string capabilities :
       {"null", "{}", "[]", R"({"textDocument":null,"workspace":1,"window":"all"})",
        R"({"textDocument":{"hover":{"contentFormat":["plaintext"]}}})",
        R"({"textDocument":{"hover":{"contentFormat":"markdown"}}})",
        R"({"textDocument":{"completion":{"completionItem":{"snippetSupport":false}}}})",
        R"({"textDocument":{"completion":{"completionItem":{"snippetSupport":1}}}})",
        R"({"textDocument":{"completion":{"snippetSupport":true}}})",
        R"({"textDocument":{"codeAction":{"codeActionLiteralSupport":true}}})",
        R"({"textDocument":{"diagnostic":true}})",
        R"({"textDocument":{"publishDiagnostics":{"tagSupport":{"valueSet":[2]}}}})",
        R"({"textDocument":{"publishDiagnostics":{"tagSupport":{"valueSet":1}}}})",
        R"({"workspace":{"didChangeWatchedFiles":{"relativePatternSupport":true}}})"})
    EXPECT_EQ(names_of_abilities(capabilities), "") << capabilities;
}

TEST(Abilities, AreAllThoseOfAClientThatHasSeveral) {
  EXPECT_EQ(names_of_abilities(
                R"({"workspace":{"configuration":true,"inlayHint":{"refreshSupport":true}},)"
                R"("textDocument":{"diagnostic":{"dynamicRegistration":false}}})"),
            "Configuration PulledDiagnostics RefreshedHints");
}

}  // namespace

}  // namespace kelp::input::quill::language_server
