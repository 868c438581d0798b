#include "language_server/server.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tools/language_server/support/client.hpp"

namespace kelp::input::quill::language_server {

namespace {

constexpr const char* uri = "file:///nowhere/job.qin";

/// A server without a client, and all that it sent.
struct Bare {
  std::vector<Json> sent = {};
  Server server{ServerOptions(), [this](const Json& message) { sent.push_back(message); }};

  void take(const std::string& text) {
    server.receive(text);
    while (server.has_work()) server.work();
  }
  std::string codes() const {
    std::string text;
    for (const Json& message : sent)
      text += message["id"].dump() + ":" +
              (message.contains("error") ? message["error"]["code"].dump() : "ok") + " ";
    return text;
  }
};

struct Row {
  std::string name;
  std::vector<std::string> messages;
  std::string answers;
  int exit_code;
};

class Session : public testing::TestWithParam<Row> {};

TEST_P(Session, IsAnsweredAsTheProtocolAsks) {
  Bare bare;
  for (const std::string& message : GetParam().messages) bare.take(message);
  EXPECT_EQ(bare.codes(), GetParam().answers);
  EXPECT_EQ(bare.server.exit_code(), GetParam().exit_code);
}

const std::string initialize =
    R"({"jsonrpc":"2.0","id":1,"method":"initialize","params":{"capabilities":{}}})";
const std::string shutdown = R"({"jsonrpc":"2.0","id":2,"method":"shutdown"})";
const std::string exit_now = R"({"jsonrpc":"2.0","method":"exit"})";
const std::string folding =
    R"({"jsonrpc":"2.0","id":3,"method":"textDocument/foldingRange","params":)"
    R"({"textDocument":{"uri":"file:///a"}}})";

const Row rows[] = {
    {"AWholeSession", {initialize, shutdown, exit_now}, "1:ok 2:ok ", 0},
    {"ExitWithoutShutdown", {initialize, exit_now}, "1:ok ", 1},
    {"ShutdownWithoutExit", {initialize, shutdown}, "1:ok 2:ok ", 0},
    {"NeitherShutdownNorExit", {initialize}, "1:ok ", 1},
    {"ExitBeforeInitialize", {exit_now}, "", 1},
    {"ARequestBeforeInitialize", {folding, initialize}, "3:-32002 1:ok ", 1},
    {"ShutdownBeforeInitialize", {shutdown, exit_now}, "2:-32002 ", 1},
    {"InitializeTwice", {initialize, initialize}, "1:ok 1:-32600 ", 1},
    {"ARequestAfterShutdown", {initialize, shutdown, folding}, "1:ok 2:ok 3:-32600 ", 0},
    {"InitializeAfterShutdown", {initialize, shutdown, initialize}, "1:ok 2:ok 1:-32600 ", 0},
    {"AnUnknownRequest",
     {initialize, R"({"jsonrpc":"2.0","id":"x","method":"a/b"})"},
     "1:ok \"x\":-32601 ",
     1},
    {"AnUnknownOptionalRequest",
     {initialize, R"({"jsonrpc":"2.0","id":"x","method":"$/b"})"},
     "1:ok \"x\":-32601 ",
     1},
    {"AnUnknownNotification", {initialize, R"({"jsonrpc":"2.0","method":"$/b"})"}, "1:ok ", 1},
    {"BrokenJson", {"{", initialize}, "null:-32700 1:ok ", 1},
    {"AList", {initialize, "[]"}, "1:ok null:-32600 ", 1},
    {"ARequestAboutATextThatIsNotOpen", {initialize, folding}, "1:ok 3:-32602 ", 1},
    {"ARequestWithoutParameters",
     {initialize, R"({"jsonrpc":"2.0","id":3,"method":"textDocument/foldingRange"})"},
     "1:ok 3:-32602 ",
     1},
    {"ARequestWithOddParameters",
     {initialize, R"({"jsonrpc":"2.0","id":3,"method":"textDocument/foldingRange","params":true})"},
     "1:ok 3:-32602 ",
     1},
    {"AnAnswerWithoutAResult", {initialize, R"({"jsonrpc":"2.0","id":77})"}, "1:ok ", 1},
    {"AnAnswerThatNobodyWaitsFor",
     {initialize, R"({"jsonrpc":"2.0","id":77,"result":null})"},
     "1:ok ",
     1},
    {"CancellingWhatIsNotThere",
     {initialize, R"({"jsonrpc":"2.0","method":"$/cancelRequest","params":{"id":9}})"},
     "1:ok ",
     1},
};

INSTANTIATE_TEST_SUITE_P(Table, Session, testing::ValuesIn(rows),
                         [](const auto& row) { return row.param.name; });

TEST(Server, TellsWhatItCanDo) {
  Bare bare;
  bare.take(initialize);
  const Json& result = bare.sent.at(0)["result"];
  EXPECT_EQ(result["serverInfo"]["name"], "quill-inp");
  const Json& capabilities = result["capabilities"];
  EXPECT_EQ(capabilities["positionEncoding"], "utf-16");
  EXPECT_EQ(capabilities["textDocumentSync"]["change"], 2);
  EXPECT_EQ(capabilities["textDocumentSync"]["openClose"], true);
  EXPECT_EQ(capabilities["diagnosticProvider"]["interFileDependencies"], true);
  for (const Feature& feature : all_features())
    EXPECT_TRUE(capabilities.contains(std::string(feature.capability))) << feature.method;
}

TEST(Server, CancelsARequestThatHasNotBegun) {
  Client client;
  client.open(uri, "#opt\n");
  client.take();
  client.send(request_message(50, "textDocument/foldingRange", names(uri)));
  client.send(request_message("b", "textDocument/foldingRange", names(uri)));
  client.send(notification_message("$/cancelRequest", {{"id", "b"}}));
  client.settle();
  const std::vector<Json> sent = client.take();
  ASSERT_EQ(sent.size(), 2U);
  EXPECT_EQ(sent[0]["id"], "b");
  EXPECT_EQ(sent[0]["error"]["code"], -32800);
  EXPECT_EQ(sent[1]["id"], 50);
  EXPECT_EQ(sent[1]["result"], Json::array());
}

TEST(Server, AnswersARequestForTheTextAsItWasWhenTheRequestWasSent) {
  Client client;
  client.open(uri, "#opt\n#freq\n");
  client.take();
  client.send(request_message(50, "textDocument/foldingRange", names(uri)));
  client.send(notification_message("textDocument/didChange",
                                   {{"textDocument", {{"uri", uri}, {"version", 2}}},
                                    {"contentChanges", Json::array({{{"text", ""}}})}}));
  client.send(request_message(51, "textDocument/foldingRange", names(uri)));
  client.settle();
  const std::vector<Json> sent = client.take();
  ASSERT_GE(sent.size(), 2U);
  EXPECT_EQ(sent[0]["result"].size(), 1U);
  EXPECT_EQ(sent[1]["result"].size(), 0U);
}

TEST(Server, TellsOfParametersThatItCannotUse) {
  Client client;
  client.notify("textDocument/didClose", {{"textDocument", 1}});
  const std::vector<Json> logged = client.take("window/logMessage");
  ASSERT_EQ(logged.size(), 1U);
  EXPECT_EQ(logged[0]["params"]["message"],
            "textDocument/didClose: 'textDocument' is missing or is not an object");
}

}  // namespace

}  // namespace kelp::input::quill::language_server
