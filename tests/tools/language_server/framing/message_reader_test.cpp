#include "language_server/framing/message_reader.hpp"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

namespace kelp::input::quill::language_server {

namespace {

using Kind = Incoming::Kind;

struct Row {
  std::string name;
  std::string bytes;
  std::vector<std::pair<Kind, std::string>> messages;  // up to the end, or what cannot be framed
};

const Row rows[] = {
    {"NothingIsAnEnd", "", {{Kind::End, ""}}},
    {"OneMessage", "Content-Length: 2\r\n\r\n{}", {{Kind::Message, "{}"}, {Kind::End, ""}}},
    {"TwoMessages",
     "Content-Length: 2\r\n\r\n{}Content-Length: 3\r\n\r\n[1]",
     {{Kind::Message, "{}"}, {Kind::Message, "[1]"}, {Kind::End, ""}}},
    {"AnEmptyMessage",
     "Content-Length: 0\r\n\r\nContent-Length: 1\r\n\r\n1",
     {{Kind::Message, ""}, {Kind::Message, "1"}, {Kind::End, ""}}},
    {"NamesInAnyLetterCase",
     "content-LENGTH: 2\r\n\r\n{}",
     {{Kind::Message, "{}"}, {Kind::End, ""}}},
    {"HeadersInAnyOrder",
     "Content-Type: application/vscode-jsonrpc; charset=utf-8\r\nContent-Length: 2\r\n\r\n{}"
     "Content-Length: 2\r\nContent-Type: a\r\n\r\n[]",
     {{Kind::Message, "{}"}, {Kind::Message, "[]"}, {Kind::End, ""}}},
    {"NoBlankAndManyBlanksAfterTheColon",
     "Content-Length:2\r\n\r\n{}Content-Length \t:   2  \r\n\r\n[]",
     {{Kind::Message, "{}"}, {Kind::Message, "[]"}, {Kind::End, ""}}},
    {"LinesThatEndInLineFeedAlone",
     "Content-Length: 2\n\n{}",
     {{Kind::Message, "{}"}, {Kind::End, ""}}},
    {"AHeaderWithoutColonIsIgnored",
     "Hello\r\nContent-Length: 2\r\n\r\n{}",
     {{Kind::Message, "{}"}, {Kind::End, ""}}},
    {"TheSameLengthTwice",
     "Content-Length: 2\r\nContent-Length: 2\r\n\r\n{}",
     {{Kind::Message, "{}"}, {Kind::End, ""}}},
    {"LineEndsInAMessageAreKept",
     "Content-Length: 4\r\n\r\n\r\n\r\n",
     {{Kind::Message, "\r\n\r\n"}, {Kind::End, ""}}},
    {"AMessageOfTheLongestLength",
     "Content-Length: 20\r\n\r\n12345678901234567890",
     {{Kind::Message, "12345678901234567890"}, {Kind::End, ""}}},
    {"ALongerMessageIsSkippedAndItsTextIsNoHeader",
     "Content-Length: 21\r\n\r\nContent-Length: 2\r\n\r\nContent-Length: 2\r\n\r\n{}",
     {{Kind::TooLong, ""}, {Kind::Message, "{}"}, {Kind::End, ""}}},
    {"AGigabyteThatDoesNotCome", "Content-Length: 1000000000\r\n\r\nabc", {{Kind::End, ""}}},
    {"ALengthThatNoNumberCanHold",
     "Content-Length: 99999999999999999999999\r\n\r\nabc",
     {{Kind::End, ""}}},
    {"AMessageThatIsCut", "Content-Length: 3\r\n\r\n{}", {{Kind::End, ""}}},
    {"AHeaderThatIsCut", "Content-Length: 3\r\n", {{Kind::End, ""}}},
    {"AHeaderLineThatIsCut", "Content-Len", {{Kind::End, ""}}},
    {"NoLength", "Content-Type: a\r\n\r\n{}", {{Kind::Unframed, ""}}},
    {"NoHeader", "\r\n{}", {{Kind::Unframed, ""}}},
    {"ANegativeLength", "Content-Length: -2\r\n\r\n{}", {{Kind::Unframed, ""}}},
    {"ALengthWithASign", "Content-Length: +2\r\n\r\n{}", {{Kind::Unframed, ""}}},
    {"ALengthOfLetters", "Content-Length: two\r\n\r\n{}", {{Kind::Unframed, ""}}},
    {"ALengthWithTextAfterIt", "Content-Length: 2 3\r\n\r\n{}", {{Kind::Unframed, ""}}},
    {"AnEmptyLength", "Content-Length: \r\n\r\n{}", {{Kind::Unframed, ""}}},
    {"TwoLengths", "Content-Length: 2\r\nContent-Length: 3\r\n\r\n{}", {{Kind::Unframed, ""}}},
    {"AnEndlessHeaderLine", std::string(100000, 'a'), {{Kind::Unframed, ""}}},
    {"EndlessHeaderLines",
     "Content-Length: 2\r\n" + std::string(10000, 'a') + "\r\n\r\n{}",
     {{Kind::Unframed, ""}}},
};

class MessageReaderOf : public testing::TestWithParam<Row> {};

TEST_P(MessageReaderOf, FindsTheMessages) {
  std::istringstream in(GetParam().bytes);
  MessageReader reader(in, 20);
  std::vector<std::pair<Kind, std::string>> found;
  do {
    const Incoming incoming = reader.read();
    found.emplace_back(incoming.kind, incoming.text);
  } while (found.back().first != Kind::End && found.back().first != Kind::Unframed);
  EXPECT_EQ(found, GetParam().messages);
}

INSTANTIATE_TEST_SUITE_P(Table, MessageReaderOf, testing::ValuesIn(rows),
                         [](const auto& row) { return row.param.name; });

TEST(MessageReader, ReadsMessagesLongerThanOneRead) {
  const std::string text(300000, 'x');
  std::istringstream in("Content-Length: 300000\r\n\r\n" + text);
  MessageReader reader(in, 300000);
  EXPECT_EQ(reader.read().text, text);
}

TEST(MessageReader, SkipsMessagesLongerThanOneRead) {
  std::istringstream in("Content-Length: 300000\r\n\r\n" + std::string(300000, 'x') +
                        "Content-Length: 2\r\n\r\n{}");
  MessageReader reader(in, 2);
  EXPECT_EQ(reader.read().kind, Kind::TooLong);
  EXPECT_EQ(reader.read().text, "{}");
}

TEST(MessageReader, KnowsWhetherSomethingHasArrived) {
  std::istringstream in("Content-Length: 2\r\n\r\n{}");
  MessageReader reader(in, 2);
  EXPECT_TRUE(reader.has_arrived());
  reader.read();
  EXPECT_FALSE(reader.has_arrived());
  reader.read();
  EXPECT_FALSE(reader.has_arrived());
}

}  // namespace

}  // namespace kelp::input::quill::language_server
