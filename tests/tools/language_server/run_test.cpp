#include "language_server/run.hpp"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "language_server/framing/message_reader.hpp"
#include "language_server/protocol/message.hpp"

namespace kelp::input::quill::language_server {

namespace {

std::string framed(const std::string& text) {
  return "Content-Length: " + std::to_string(text.size()) + "\r\n\r\n" + text;
}

/// Runs the server on some bytes, and returns the identities and error codes of its answers, the
/// methods of its other messages, and its exit code.
std::string outcome(const std::string& bytes, std::size_t longest = 1000) {
  std::istringstream in(bytes);
  std::ostringstream out;
  ServerOptions options;
  options.longest_message = longest;
  const int code = run(in, out, options);
  std::istringstream sent(out.str());
  MessageReader reader(sent, 1'000'000);
  std::string text;
  for (;;) {
    const Incoming incoming = reader.read();
    if (incoming.kind != Incoming::Kind::Message) break;
    const Json message = Json::parse(incoming.text);
    text += message.contains("method") ? message["method"].get<std::string>()
            : message.contains("error")
                ? message["id"].dump() + ":" + message["error"]["code"].dump()
                : message["id"].dump() + ":ok";
    text += " ";
  }
  return text + std::to_string(code);
}

const std::string initialize =
    framed(R"({"jsonrpc":"2.0","id":1,"method":"initialize","params":{"capabilities":{}}})");
const std::string shutdown = framed(R"({"jsonrpc":"2.0","id":2,"method":"shutdown"})");
const std::string exit_now = framed(R"({"jsonrpc":"2.0","method":"exit"})");

struct Row {
  std::string name;
  std::string bytes;
  std::string outcome;
};

class Run : public testing::TestWithParam<Row> {};

TEST_P(Run, EndsAsTheProtocolAsks) { EXPECT_EQ(outcome(GetParam().bytes), GetParam().outcome); }

const Row rows[] = {
    {"NothingAtAll", "", "1"},
    {"AWholeSession", initialize + shutdown + exit_now, "1:ok 2:ok 0"},
    {"TheInputEndsAfterShutdown", initialize + shutdown, "1:ok 2:ok 0"},
    {"TheInputEndsBeforeShutdown", initialize, "1:ok 1"},
    {"NothingIsReadAfterExit", initialize + exit_now + shutdown, "1:ok 1"},
    {"BrokenJsonIsAnsweredAndTheNextMessageIsTaken", initialize + framed("{") + shutdown + exit_now,
     "null:-32700 1:ok 2:ok 0"},
    {"ALongMessageIsAnsweredAndTheNextOneIsTaken",
     initialize + framed(std::string(1001, ' ')) + shutdown + exit_now, "null:-32600 1:ok 2:ok 0"},
    {"AHeaderWithoutLengthEndsTheSession", initialize + "a: b\r\n\r\n" + shutdown,
     "null:-32700 1:ok 1"},
    {"AMessageThatIsCutEndsTheSession", initialize + "Content-Length: 50\r\n\r\n{}", "1:ok 1"},
    {"AGigabyteThatDoesNotComeEndsTheSession", initialize + "Content-Length: 1000000000\r\n\r\n{}",
     "1:ok 1"},
};

INSTANTIATE_TEST_SUITE_P(Table, Run, testing::ValuesIn(rows),
                         [](const auto& row) { return row.param.name; });

TEST(Run, EndsWhenNothingCanBeWritten) {
  std::istringstream in(initialize + shutdown + exit_now);
  std::ostringstream out;
  out.setstate(std::ios::badbit);
  EXPECT_EQ(run(in, out, ServerOptions()), 1);
}

TEST(Run, PublishesWhatIsFoundWhenNothingElseIsToBeDone) {
  const std::string text =
      framed(R"({"jsonrpc":"2.0","method":"textDocument/didOpen","params":{"textDocument":)"
             R"({"uri":"file:///nowhere/a.qin","languageId":"","version":1,"text":"0 1\n"}}})");
  EXPECT_EQ(outcome(initialize + text), "1:ok textDocument/publishDiagnostics 1");
}

/// Returns how a session ends in which a request is cancelled after so many bytes, with its own,
/// that wait.
std::string outcome_of_cancelling_after(std::size_t bytes) {
  const std::string request = R"({"jsonrpc":"2.0","id":7,"method":"none"})";
  const std::string unknown = R"({"jsonrpc":"2.0","method":"none"})";
  const std::string blanks(bytes - request.size() - unknown.size(), ' ');
  const std::string cancel = R"({"jsonrpc":"2.0","method":"$/cancelRequest","params":{"id":7}})";
  return outcome(initialize + framed(request) + framed(unknown + blanks) + framed(cancel) +
                 shutdown + exit_now);
}

TEST(Run, WorksBeforeMoreBytesWaitThanTheLongestMessageHas) {
  EXPECT_EQ(outcome_of_cancelling_after(999), "1:ok 7:-32800 2:ok 0");
  EXPECT_EQ(outcome_of_cancelling_after(1000), "1:ok 7:-32601 2:ok 0");
}

/// The same after so many messages, with the request.
std::string outcome_of_cancelling_after_messages(std::size_t count) {
  std::string bytes = initialize + framed(R"({"jsonrpc":"2.0","id":7,"method":"none"})");
  for (std::size_t i = 1; i < count; ++i) bytes += framed(R"({"jsonrpc":"2.0","method":"none"})");
  bytes += framed(R"({"jsonrpc":"2.0","method":"$/cancelRequest","params":{"id":7}})");
  return outcome(bytes + shutdown + exit_now, 1'000'000);
}

TEST(Run, WorksBeforeMoreThanAThousandMessagesWait) {
  EXPECT_EQ(outcome_of_cancelling_after_messages(999), "1:ok 7:-32800 2:ok 0");
  EXPECT_EQ(outcome_of_cancelling_after_messages(1000), "1:ok 7:-32601 2:ok 0");
}

}  // namespace

}  // namespace kelp::input::quill::language_server
