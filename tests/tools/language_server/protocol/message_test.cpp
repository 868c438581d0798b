#include "language_server/protocol/message.hpp"

#include <gtest/gtest.h>

#include <string>

namespace kelp::input::quill::language_server {

namespace {

using Kind = Message::Kind;

struct Row {
  std::string name;
  std::string text;
  Kind kind;
  std::string id;
  std::string method;
  std::string params;
};

class MessageText : public testing::TestWithParam<Row> {};

TEST_P(MessageText, IsTakenApart) {
  const Message message = parse_message(GetParam().text);
  EXPECT_EQ(message.kind, GetParam().kind);
  EXPECT_EQ(message.id.dump(), GetParam().id);
  EXPECT_EQ(message.method, GetParam().method);
  EXPECT_EQ(message.params.dump(), GetParam().params);
}

const Row rows[] = {
    {"ARequest", R"({"jsonrpc":"2.0","id":1,"method":"a/b","params":{"c":2}})", Kind::Request, "1",
     "a/b", R"({"c":2})"},
    {"ATextAsIdentity", R"({"jsonrpc":"2.0","id":"x","method":"a"})", Kind::Request, "\"x\"", "a",
     "null"},
    {"AListOfParameters", R"({"jsonrpc":"2.0","id":-1,"method":"a","params":[1]})", Kind::Request,
     "-1", "a", "[1]"},
    {"NullAsParameters", R"({"jsonrpc":"2.0","id":1,"method":"a","params":null})", Kind::Request,
     "1", "a", "null"},
    {"ANotification", R"({"jsonrpc":"2.0","method":"a","params":{}})", Kind::Notification, "null",
     "a", "{}"},
    {"ParametersThatAreANumber", R"({"jsonrpc":"2.0","id":1,"method":"a","params":1})",
     Kind::Request, "1", "a", "1"},
    {"AnAnswerWithoutAResult", R"({"jsonrpc":"2.0","id":3})", Kind::Response, "3", "", "null"},
    {"AnAnswer", R"({"jsonrpc":"2.0","id":3,"result":null})", Kind::Response, "3", "", "null"},
    {"AnError", R"({"jsonrpc":"2.0","id":3,"error":{"code":1,"message":"b"}})", Kind::Response, "3",
     "", "null"},
};

INSTANTIATE_TEST_SUITE_P(Table, MessageText, testing::ValuesIn(rows),
                         [](const auto& row) { return row.param.name; });

TEST(Message, TellsAnErrorFromAResult) {
  EXPECT_TRUE(parse_message(R"({"jsonrpc":"2.0","id":3,"error":{}})").is_error);
  const Message answer = parse_message(R"({"jsonrpc":"2.0","id":3,"result":[1]})");
  EXPECT_FALSE(answer.is_error);
  EXPECT_EQ(answer.result, Json::array({1}));
}

struct RefusedRow {
  std::string name;
  std::string text;
  ErrorCode code;
};

class RefusedText : public testing::TestWithParam<RefusedRow> {};

TEST_P(RefusedText, IsNoMessage) {
  try {
    parse_message(GetParam().text);
    FAIL() << "was accepted";
  } catch (const ResponseError& error) {
    EXPECT_EQ(error.code(), GetParam().code) << error.what();
  }
}

std::string nested(std::size_t depth) {
  return R"({"jsonrpc":"2.0","method":"a","params":)" + std::string(depth, '[') +
         std::string(depth, ']') + "}";
}

std::string many_values(std::size_t count) {
  std::string text = R"({"jsonrpc":"2.0","method":"a","params":[0)";
  for (std::size_t i = 1; i < count; ++i) text += ",0";
  return text + "]}";
}

const RefusedRow refused_rows[] = {
    {"Nothing", "", ErrorCode::ParseError},
    {"NotJson", "{", ErrorCode::ParseError},
    {"TextAfterTheEnd", R"({"jsonrpc":"2.0","method":"a"}x)", ErrorCode::ParseError},
    {"BytesThatAreNotUtf8", "\"\xff\"", ErrorCode::ParseError},
    {"HalfOfASurrogatePair", R"({"jsonrpc":"2.0","method":"\ud83d"})", ErrorCode::ParseError},
    {"AList", "[]", ErrorCode::InvalidRequest},
    {"NoVersion", R"({"method":"a"})", ErrorCode::InvalidRequest},
    {"AnotherVersion", R"({"jsonrpc":"1.0","method":"a"})", ErrorCode::InvalidRequest},
    {"NoMethod", R"({"jsonrpc":"2.0","result":1})", ErrorCode::InvalidRequest},
    {"AMethodThatIsANumber", R"({"jsonrpc":"2.0","method":1})", ErrorCode::InvalidRequest},
    {"AnIdentityThatIsNull", R"({"jsonrpc":"2.0","id":null,"method":"a"})",
     ErrorCode::InvalidRequest},
    {"AnIdentityThatIsAFraction", R"({"jsonrpc":"2.0","id":1.5,"method":"a"})",
     ErrorCode::InvalidRequest},
    {"AnIdentityThatIsAnObject", R"({"jsonrpc":"2.0","id":{},"method":"a"})",
     ErrorCode::InvalidRequest},
    {"ValuesWithinValues", nested(100), ErrorCode::InvalidRequest},
    {"AMillionValues", many_values(1'000'001), ErrorCode::InvalidRequest},
};

INSTANTIATE_TEST_SUITE_P(Table, RefusedText, testing::ValuesIn(refused_rows),
                         [](const auto& row) { return row.param.name; });

TEST(Message, MayBeNestedAndMayHaveManyValues) {
  EXPECT_EQ(parse_message(nested(60)).method, "a");
  EXPECT_EQ(parse_message(many_values(900'000)).params.size(), 900'000U);
}

TEST(Message, ForTheClientHasWhatTheProtocolAsksFor) {
  EXPECT_EQ(json_text(request_message(1, "a", nullptr)),
            R"({"id":1,"jsonrpc":"2.0","method":"a"})");
  EXPECT_EQ(json_text(notification_message("a", {{"b", 1}})),
            R"({"jsonrpc":"2.0","method":"a","params":{"b":1}})");
  EXPECT_EQ(json_text(result_message("x", nullptr)), R"({"id":"x","jsonrpc":"2.0","result":null})");
  EXPECT_EQ(json_text(error_message(nullptr, ResponseError(ErrorCode::ParseError, "no"))),
            R"({"error":{"code":-32700,"message":"no"},"id":null,"jsonrpc":"2.0"})");
}

TEST(JsonText, ReplacesBytesThatAreNotUtf8) { EXPECT_EQ(json_text("a\xff"), "\"a\xEF\xBF\xBD\""); }

struct IntegerRow {
  std::string text;
  bool is_taken;
};

TEST(IntegerMember, IsFromZeroTo31Bits) {
  const IntegerRow integers[] = {
      {"0", true},    {"2147483647", true}, {"2147483648", false},           {"-1", false},
      {"1.0", false}, {"\"1\"", false},     {"18446744073709551615", false}, {"null", false}};
  for (const IntegerRow& row : integers) {
    const Json object = Json::parse("{\"a\":" + row.text + "}");
    if (row.is_taken) {
      EXPECT_EQ(integer_member(object, "a"), std::stoul(row.text));
    } else {
      EXPECT_THROW(integer_member(object, "a"), ResponseError) << row.text;
    }
  }
}

}  // namespace

}  // namespace kelp::input::quill::language_server
