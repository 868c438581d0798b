#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "language_server/session/client_abilities.hpp"
#include "language_server/session/settings.hpp"
#include "tools/language_server/support/client.hpp"

namespace kelp::input::quill::language_server {

namespace {

constexpr const char* uri = "file:///nowhere/job.qin";

std::vector<std::string> registered(Client& client) {
  std::vector<std::string> methods;
  for (const Json& message : client.take("client/registerCapability"))
    methods.push_back(message["params"]["registrations"][0]["method"].get<std::string>());
  return methods;
}

TEST(Configuration, IsLeftToAClientThatCanDoNothing) {
  Client client;
  EXPECT_TRUE(client.take().empty());
}

TEST(Configuration, WatchesFilesWhereTheClientDoes) {
  Client client(Json{{"workspace",
                      {{"didChangeWatchedFiles", {{"dynamicRegistration", true}}},
                       {"didChangeConfiguration", {{"dynamicRegistration", true}}}}}});
  EXPECT_EQ(registered(client), (std::vector<std::string>{"workspace/didChangeWatchedFiles",
                                                          "workspace/didChangeConfiguration"}));
}

TEST(Configuration, AsksForItsSectionAndTakesTheAnswer) {
  Client client(
      Json{{"workspace", {{"configuration", true}}},
           {"textDocument", {{"publishDiagnostics", {{"codeDescriptionSupport", true}}}}}});
  std::vector<Json> asked = client.take("workspace/configuration");
  ASSERT_EQ(asked.size(), 1U);
  EXPECT_EQ(asked[0]["params"], (Json{{"items", Json::array({{{"section", "quillInp"}}})}}));
  client.open(uri, "");
  client.take();
  client.send(result_message(asked[0]["id"], Json::array({{{"pages", "https://a/"}}})));
  client.settle();
  EXPECT_EQ(client.take("textDocument/publishDiagnostics")
                .at(0)["params"]["diagnostics"][0]["codeDescription"]["href"],
            "https://a/QL009.md");
  client.notify("workspace/didChangeConfiguration", {{"settings", nullptr}});
  EXPECT_EQ(client.take("workspace/configuration").size(), 1U);
}

TEST(Configuration, TakesSettingsThatAreSentAndRefreshesHints) {
  Client client(
      Json{{"workspace", {{"inlayHint", {{"refreshSupport", true}}}}},
           {"textDocument", {{"publishDiagnostics", {{"codeDescriptionSupport", true}}}}}});
  client.open(uri, "");
  client.take();
  client.notify("workspace/didChangeConfiguration",
                {{"settings", {{"quillInp", {{"pages", "https://b/"}}}}}});
  EXPECT_EQ(client.take("workspace/inlayHint/refresh").size(), 1U);
  EXPECT_EQ(client.take("textDocument/publishDiagnostics")
                .at(0)["params"]["diagnostics"][0]["codeDescription"]["href"],
            "https://b/QL009.md");
}

TEST(Settings, AreThoseOfTheSection) {
  EXPECT_TRUE(settings_of(nullptr).shows_atom_numbers);
  EXPECT_FALSE(settings_of({{"inlayHints", {{"atomNumbers", false}}}}).shows_atom_numbers);
  EXPECT_TRUE(settings_of({{"inlayHints", {{"atomNumbers", 0}}}}).shows_atom_numbers);
  EXPECT_TRUE(settings_of({{"inlayHints", true}}).shows_atom_numbers);
  EXPECT_EQ(settings_of({{"pages", "p"}}).pages, "p");
  EXPECT_EQ(settings_of({{"pages", 1}}).pages, "");
}

struct EncodingRow {
  std::string offered;
  PositionEncoding chosen;
};

TEST(PositionEncodings, AreAgreedOn) {
  const EncodingRow rows[] = {{"{}", PositionEncoding::Utf16},
                              {R"(["utf-16"])", PositionEncoding::Utf16},
                              {R"(["utf-16","utf-8"])", PositionEncoding::Utf8},
                              {R"(["utf-32","utf-16"])", PositionEncoding::Utf32},
                              {R"(["utf-7","utf-16"])", PositionEncoding::Utf16},
                              {R"(["utf-7"])", PositionEncoding::Utf16},
                              {R"([])", PositionEncoding::Utf16},
                              {R"([1,"utf-32"])", PositionEncoding::Utf32},
                              {R"("utf-8")", PositionEncoding::Utf16}};
  for (const EncodingRow& row : rows) {
    const Json offered = Json::parse(row.offered);
    EXPECT_EQ(chosen_encoding({{"general", {{"positionEncodings", offered}}}}), row.chosen)
        << row.offered;
  }
}

}  // namespace

}  // namespace kelp::input::quill::language_server
