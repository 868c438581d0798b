#include "language_server/diagnostics/diagnostic_list.hpp"

#include <gtest/gtest.h>

#include <string>

#include "lint/lint.hpp"
#include "tools/language_server/support/snapshots.hpp"

namespace kelp::input::quill::language_server {

namespace {

const Pages pages = {"https://host/", ""};

/// Returns the diagnostics of all that is found in a text.
Json diagnostics_of(const std::string& text, const ClientAbilities& client) {
  const Snapshot snapshot = snapshot_of(text);
  return diagnostic_list({lint::find_all(snapshot.read(), lint::Options()), {}}, snapshot, client,
                         pages);
}

ClientAbilities able(bool ClientAbilities::*ability) {
  ClientAbilities client;
  client.*ability = true;
  return client;
}

// The face takes two units, so that bytes and columns differ.
const std::string twice = "#opt(\xF0\x9F\x98\x80, tight, tight)\n0 1\nO 0 0 0\n";

/// What every client gets for it.
Json plain() {
  return {{"range", to_json(PositionRange{{0, 16}, {0, 21}})},
          {"severity", 2},
          {"code", "QL211"},
          {"source", "quill-inp"},
          {"message",
           "the parameter 'tight' was given before, and only the first one is found\n"
           "to fix: keep one of the two"}};
}

TEST(DiagnosticList, HasWhatEveryClientCanShow) {
  EXPECT_EQ(diagnostics_of(twice, {}), Json::array({plain()}));
}

TEST(DiagnosticList, HasWhatElseAClientCanShow) {
  Json linked = plain();
  linked["codeDescription"] = {{"href", "https://host/QL211.md"}};
  EXPECT_EQ(diagnostics_of(twice, able(&ClientAbilities::has_code_links)), Json::array({linked}));
  Json tagged = plain();
  tagged["tags"] = Json::array({1});
  EXPECT_EQ(diagnostics_of(twice, able(&ClientAbilities::has_unnecessary_tag)),
            Json::array({tagged}));
  Json related = plain();
  const Json place = {{"uri", "file:///job.qin"},
                      {"range", to_json(PositionRange{{0, 9}, {0, 14}})}};
  related["relatedInformation"] =
      Json::array({{{"location", place}, {"message", "the one that counts"}}});
  EXPECT_EQ(diagnostics_of(twice, able(&ClientAbilities::has_related_places)),
            Json::array({related}));
}

TEST(DiagnosticList, HasNoLinkToAPageThatIsNowhere) {
  const Snapshot snapshot = snapshot_of(twice);
  const lint::FirstFindings found{lint::find_all(snapshot.read(), lint::Options()), {}};
  EXPECT_EQ(diagnostic_list(found, snapshot, able(&ClientAbilities::has_code_links), {}),
            Json::array({plain()}));
}

/// The codes and the severities of diagnostics, with a mark for each member that not all have.
std::string shown(const Json& diagnostics) {
  std::string text;
  for (const Json& one : diagnostics) {
    text += one["code"].get<std::string>() + ":" + one["severity"].dump();
    text += one.contains("tags") ? "t" : "";
    text += one.contains("relatedInformation") ? "r" : "";
    text += " ";
  }
  return text;
}

TEST(DiagnosticList, HasTheSeverityOfEachAndTagsAndRelatedPlacesWhereThereAreSome) {
  ClientAbilities client;
  client.has_unnecessary_tag = true;
  client.has_related_places = true;
  EXPECT_EQ(shown(diagnostics_of("#opt(a, a)\n#freq\n0 1\nXx 0 0 0\nP a.dat\nB 1 x\n", client)),
            "QL211:2tr QL208:3r QL112:2 QL301:1t ");
}

TEST(DiagnosticList, ShowsBytesThatCannotBeSeenAndKeepsTheAdviceOnALineOfItsOwn) {
  const Json list = diagnostics_of("#opt(a\x01, a\x01)\n0 1\nO 0 0 0\n", {});
  ASSERT_EQ(list.size(), 1U);
  EXPECT_EQ(list[0]["message"],
            "the parameter 'a\\x01' was given before, and only the first one is found\n"
            "to fix: keep one of the two");
}

TEST(DiagnosticList, SaysHowManyMoreThereAreOfACodeAtTheLastOneThatItHas) {
  const Snapshot snapshot = snapshot_of("#opt(a, a,, a,,)\n0 1\nO 0 0 0\nB 1 x\nB 1 y\n");
  const lint::FirstFindings found = lint::find_first(snapshot.read(), lint::Options(), {1, 0});
  Json expected = diagnostic_list({found.findings, {}}, snapshot, {}, {});
  ASSERT_EQ(shown(expected), "QL211:2 QL212:2 QL301:1 ");
  const auto add_more = [&](const Json& range, const std::string& message) {
    expected.push_back(
        {{"range", range}, {"severity", 3}, {"source", "quill-inp"}, {"message", message}});
  };
  add_more(expected[0]["range"], "and 1 more of QL211");
  add_more(expected[1]["range"], "and 2 more of QL212");
  add_more(expected[2]["range"], "and 1 more of QL301");
  EXPECT_EQ(diagnostic_list(found, snapshot, {}, {}), expected);
}

TEST(DiagnosticList, IsEmptyWithoutFindings) {
  EXPECT_EQ(diagnostics_of("#opt\n0 1\nO 0 0 0\n", {}), Json::array());
}

}  // namespace

}  // namespace kelp::input::quill::language_server
