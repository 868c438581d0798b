#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "language_server/documents/open_documents.hpp"
#include "language_server/protocol/response_error.hpp"
#include "tools/language_server/support/client.hpp"

namespace kelp::input::quill::language_server {

namespace {

constexpr const char* uri = "file:///nowhere/job.qin";

struct Row {
  std::string name;
  std::string before;
  std::vector<Json> changes;
  std::string after;
};

class Changes : public testing::TestWithParam<Row> {};

TEST_P(Changes, AreMadeOneAfterAnother) {
  OpenDocument document(uri, 1, GetParam().before, PositionEncoding::Utf16);
  document.change(2, GetParam().changes);
  EXPECT_EQ(document.text(), GetParam().after);
  EXPECT_EQ(document.snapshot().text(), GetParam().after);
  EXPECT_EQ(document.snapshot().version(), 2);
  EXPECT_FALSE(document.is_lost());
}

const Row rows[] = {
    {"NoChange", "ab", {}, "ab"},
    {"TheWholeText", "ab", {{{"text", "cd"}}}, "cd"},
    {"NullAsRangeIsTheWholeText", "ab", {{{"text", "cd"}, {"range", nullptr}}}, "cd"},
    {"AnInsertion", "ab", {replacement({0, 1}, {0, 1}, "x")}, "axb"},
    {"ARemoval", "a\nb\nc", {replacement({0, 1}, {1, 1}, "")}, "a\nc"},
    {"AReplacementOverALineEnd", "a\r\nb", {replacement({0, 0}, {1, 1}, "x\ny\nz")}, "x\ny\nz"},
    {"AnEmptyRangeWithNothing", "ab", {replacement({0, 1}, {0, 1}, "")}, "ab"},
    {"AfterTheEndOfALine", "a\nb", {replacement({0, 9}, {0, 9}, "x")}, "ax\nb"},
    {"TheLastLineWithoutItsLineEnd", "a\nb", {replacement({1, 0}, {2, 0}, "")}, "a\n"},
    {"AtTheEndOfTheText", "a\n", {replacement({1, 0}, {1, 0}, "b")}, "a\nb"},
    {"EachChangeSeesThoseBeforeIt",
     "ab",
     {replacement({0, 0}, {0, 0}, "x\n"), replacement({1, 0}, {1, 1}, "y"),
      replacement({0, 1}, {1, 0}, "")},
     "xyb"},
    {"AWholeTextAfterAChange",
     "ab",
     {replacement({0, 0}, {0, 1}, "x"), {{"text", "c\nd"}}, replacement({1, 0}, {1, 0}, "e")},
     "c\ned"},
    {"AfterASurrogatePair",
     "\xF0\x9F\x98\x80 b",
     {replacement({0, 2}, {0, 3}, "")},
     "\xF0\x9F\x98\x80"
     "b"},
    {"LineFeedAfterCarriageReturnMakesOneLineEnd",
     "a\rb",
     {replacement({1, 0}, {1, 0}, "\n"), replacement({1, 0}, {1, 1}, "x")},
     "a\r\nx"},
    {"RemovingALineFeedLeavesACarriageReturn",
     "a\r\nb\nc",
     {replacement({0, 1}, {1, 0}, "\r"), replacement({1, 0}, {1, 1}, "x")},
     "a\rx\nc"},
    {"ARangeLengthIsIgnored",
     "ab",
     {{{"text", "x"}, {"range", to_json(PositionRange{{0, 0}, {0, 1}})}, {"rangeLength", 7}}},
     "xb"},
};

INSTANTIATE_TEST_SUITE_P(Table, Changes, testing::ValuesIn(rows),
                         [](const auto& row) { return row.param.name; });

struct MisfitRow {
  std::string name;
  Json change;
};

class Misfit : public testing::TestWithParam<MisfitRow> {};

TEST_P(Misfit, LosesTheTextUntilAllOfItComes) {
  Client client;
  client.open(uri, "0 1\nO 0 0 0\n\xF0\x9F\x98\x80\n");
  client.take();
  client.change(uri, Json::array({GetParam().change}), 2);
  EXPECT_EQ(client.published(uri), "nothing");
  EXPECT_EQ(client.take("window/logMessage").size(), 1U);
  EXPECT_EQ(client.request("textDocument/foldingRange", names(uri))["error"]["code"], -32803);
  client.change(uri, Json::array({replacement({0, 0}, {0, 0}, "x")}), 3);
  EXPECT_EQ(client.published(uri), "nothing");
  client.change(uri, Json::array({{{"text", "#sp\n"}}}), 4);
  EXPECT_EQ(client.published(uri), "0:0-0:0 QL113\n");
  EXPECT_EQ(client.result("textDocument/foldingRange", names(uri)), Json::array());
}

const MisfitRow misfit_rows[] = {
    {"TheEndBeforeTheBeginning", replacement({1, 1}, {1, 0}, "")},
    {"HalfASurrogatePair", replacement({2, 1}, {2, 1}, "x")},
    {"NoText", {{"range", to_json(PositionRange{})}}},
    {"ATextThatIsANumber", {{"text", 1}}},
    {"ARangeThatIsANumber", {{"text", ""}, {"range", 1}}},
    {"ANegativeLine",
     {{"text", ""},
      {"range", {{"start", {{"line", -1}, {"character", 0}}}, {"end", to_json(Position{})}}}}},
    {"ANumber", 1},
};

INSTANTIATE_TEST_SUITE_P(Table, Misfit, testing::ValuesIn(misfit_rows),
                         [](const auto& row) { return row.param.name; });

TEST(TextSynchronization, KeepsTheTextOfAnOpenTextThatIsOpenedAgain) {
  Client client;
  client.open(uri, "#opt\n");
  client.open(uri, "#opt\n#freq\n", 7);
  EXPECT_EQ(client.result("textDocument/foldingRange", names(uri)).size(), 1U);
}

TEST(TextSynchronization, LosesEveryTextWhenAChangeDoesNotSayOfWhich) {
  Client client;
  client.open(uri, "#opt\n");
  client.notify("textDocument/didChange", {{"contentChanges", Json::array()}});
  EXPECT_EQ(client.request("textDocument/foldingRange", names(uri))["error"]["code"], -32803);
}

TEST(TextSynchronization, LosesEveryTextWhenAMessageIsNotJson) {
  Client client;
  client.open(uri, "#opt\n");
  client.send_text(
      R"({"jsonrpc":"2.0","method":"textDocument/didChange","params":{"text":"\ud83d"}})");
  EXPECT_EQ(client.request("textDocument/foldingRange", names(uri))["error"]["code"], -32803);
  client.change(uri, Json::array({{{"text", ""}}}), 3);
  EXPECT_EQ(client.result("textDocument/foldingRange", names(uri)), Json::array());
}

TEST(TextSynchronization, LosesATextWhoseChangesAreNoList) {
  Client client;
  client.open(uri, "#opt\n");
  client.change(uri, 1, 2);
  EXPECT_EQ(client.request("textDocument/foldingRange", names(uri))["error"]["code"], -32803);
}

TEST(TextSynchronization, ForgetsAClosedText) {
  Client client;
  client.open(uri, "#opt\n");
  client.take();
  client.close(uri);
  const std::vector<Json> published = client.take("textDocument/publishDiagnostics");
  ASSERT_EQ(published.size(), 1U);
  EXPECT_EQ(published[0]["params"], (Json{{"uri", uri}, {"diagnostics", Json::array()}}));
  EXPECT_EQ(client.request("textDocument/foldingRange", names(uri))["error"]["code"], -32602);
}

}  // namespace

}  // namespace kelp::input::quill::language_server
