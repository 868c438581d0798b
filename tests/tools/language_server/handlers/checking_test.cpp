#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "language_server/project/file_address.hpp"
#include "support/temporary_folder.hpp"
#include "tools/language_server/support/client.hpp"

namespace kelp::input::quill::language_server {

namespace {

constexpr const char* uri = "file:///nowhere/job.qin";
const std::string water = "#sp\n0 1\nO 0 0 0.117\nH 0 0.757 -0.469\nH 0 -0.757 -0.469\n";

const Json everything = {{"textDocument",
                          {{"publishDiagnostics",
                            {{"relatedInformation", true},
                             {"codeDescriptionSupport", true},
                             {"tagSupport", {{"valueSet", {1, 2}}}}}}}}};
const Json pulling = {{"textDocument", {{"diagnostic", Json::object()}}},
                      {"workspace", {{"diagnostics", {{"refreshSupport", true}}}}}};

TEST(Checking, PublishesWhatIsFoundInAnOpenedText) {
  Client client;
  client.open(uri, "#opt\n0 1\nO 0 0 0.117\nH 0 0.757 -0,469\n", 5);
  const std::vector<Json> published = client.take("textDocument/publishDiagnostics");
  ASSERT_EQ(published.size(), 1U);
  const Json expected = {
      {"uri", uri},
      {"version", 5},
      {"diagnostics",
       Json::array({{{"range", to_json(PositionRange{{3, 10}, {3, 16}})},
                     {"severity", 1},
                     {"code", "QL104"},
                     {"source", "quill-inp"},
                     {"message",
                      "this line ended the atoms after 1 atom: '-0,469' is not a number\n"
                      "to fix: write a symbol and three numbers with decimal points"}}})}};
  EXPECT_EQ(published[0]["params"], expected);
}

TEST(Checking, PublishesAnEmptyListWhenNothingIsFound) {
  Client client;
  client.open(uri, water);
  EXPECT_EQ(client.published(uri), "");
}

TEST(Checking, ShowsRelatedPlacesTagsAndPagesToClientsThatKnowThem) {
  ServerOptions options;
  options.pages_folder = KELP_QUILL_INP_SOURCE_DIR "/docs/lint";
  Client client(everything, options);
  client.open(uri, "#opt(tight, tight)\n" + water.substr(4));
  const std::vector<Json> published = client.take("textDocument/publishDiagnostics");
  ASSERT_EQ(published.size(), 1U);
  const Json& diagnostic = published[0]["params"]["diagnostics"][0];
  EXPECT_EQ(diagnostic["code"], "QL211");
  EXPECT_EQ(diagnostic["severity"], 2);
  EXPECT_EQ(diagnostic["tags"], Json::array({1}));
  EXPECT_EQ(diagnostic["codeDescription"],
            (Json{{"href", address_of_path(options.pages_folder + "/QL211.md")}}));
  const Json place = {{"uri", uri}, {"range", to_json(PositionRange{{0, 5}, {0, 10}})}};
  EXPECT_EQ(diagnostic["relatedInformation"],
            Json::array({{{"location", place}, {"message", "the one that counts"}}}));
}

TEST(Checking, TagsOnlyWhatHasNoEffect) {
  Client client(everything);
  client.open(uri, "#sp\n0 1\nXx 0 0 0\nP a.dat\nB 1 x\n");
  const std::vector<Json> published = client.take("textDocument/publishDiagnostics");
  ASSERT_EQ(published.size(), 1U);
  std::string tagged;
  for (const Json& diagnostic : published[0]["params"]["diagnostics"])
    tagged += diagnostic["code"].get<std::string>() + (diagnostic.contains("tags") ? "+ " : " ");
  EXPECT_EQ(tagged, "QL112 QL301+ ");
}

TEST(Checking, TakesTheAddressesOfPagesFromTheSettings) {
  Client client(everything, {}, {{"pages", "https://example.org/{code}.html"}});
  client.open(uri, "");
  const std::vector<Json> published = client.take("textDocument/publishDiagnostics");
  EXPECT_EQ(published.at(0)["params"]["diagnostics"][0]["codeDescription"]["href"],
            "https://example.org/ql009.html");
}

TEST(Checking, HasNoLinkToAPageThatIsNotInstalled) {
  ServerOptions options;
  options.pages_folder = "/nowhere";
  Client client(everything, options);
  client.open(uri, "");
  const std::vector<Json> published = client.take("textDocument/publishDiagnostics");
  EXPECT_FALSE(published.at(0)["params"]["diagnostics"][0].contains("codeDescription"));
}

TEST(Checking, LooksAtSeveralChangesOnce) {
  Client client;
  client.open(uri, water);
  client.take();
  for (int version = 2; version < 5; ++version) {
    client.send(notification_message(
        "textDocument/didChange",
        {{"textDocument", {{"uri", uri}, {"version", version}}},
         {"contentChanges", Json::array({replacement({0, 0}, {0, 0}, "#opt\n")})}}));
  }
  client.settle();
  const std::vector<Json> published = client.take("textDocument/publishDiagnostics");
  ASSERT_EQ(published.size(), 1U);
  EXPECT_EQ(published[0]["params"]["version"], 4);
}

TEST(Checking, DoesNotPublishWhatAChangeHasMadeOutdated) {
  Client client;
  client.open(uri, water);
  client.take();
  const auto send_change = [&](int version) {
    client.send(notification_message("textDocument/didChange",
                                     {{"textDocument", {{"uri", uri}, {"version", version}}},
                                      {"contentChanges", Json::array({{{"text", ""}}})}}));
  };
  send_change(2);
  client.work();  // makes the change
  client.work();  // checks the text
  send_change(3);
  client.settle();
  const std::vector<Json> published = client.take("textDocument/publishDiagnostics");
  ASSERT_EQ(published.size(), 1U);
  EXPECT_EQ(published[0]["params"]["version"], 3);
}

TEST(Checking, AnswersRequestsBeforeItChecks) {
  Client client;
  client.open(uri, water);
  client.take();
  client.send(notification_message("textDocument/didChange",
                                   {{"textDocument", {{"uri", uri}, {"version", 2}}},
                                    {"contentChanges", Json::array({{{"text", ""}}})}}));
  client.send(request_message("a", "textDocument/foldingRange", names(uri)));
  client.settle();
  const std::vector<Json> sent = client.take();
  ASSERT_EQ(sent.size(), 2U);
  EXPECT_EQ(sent[0]["id"], "a");
  EXPECT_EQ(sent[1]["method"], "textDocument/publishDiagnostics");
}

TEST(Checking, LetsAClientPull) {
  Client client(pulling);
  client.open(uri, "");
  EXPECT_EQ(client.published(uri), "nothing");
  const Json first = client.result("textDocument/diagnostic", names(uri));
  EXPECT_EQ(first["kind"], "full");
  EXPECT_EQ(shown(first["items"]), "0:0-0:0 QL009\n");
  Json params = names(uri);
  params["previousResultId"] = first["resultId"];
  const Json second = client.result("textDocument/diagnostic", params);
  EXPECT_EQ(second, (Json{{"kind", "unchanged"}, {"resultId", first["resultId"]}}));
  client.change(uri, Json::array({{{"text", water}}}), 2);
  const Json third = client.result("textDocument/diagnostic", params);
  EXPECT_EQ(third["kind"], "full");
  EXPECT_NE(third["resultId"], first["resultId"]);
  EXPECT_EQ(third["items"], Json::array());
}

TEST(Checking, CountsPositionsAsClientAndServerHaveAgreed) {
  const std::string text = "#sp(a=\xF0\x9F\x98\x80, b, b)\n0 1\nO 0 0 0\n";
  const std::pair<const char*, const char*> rows[] = {{"utf-8", "0:15-0:16 QL211\n"},
                                                      {"utf-16", "0:13-0:14 QL211\n"},
                                                      {"utf-32", "0:12-0:13 QL211\n"}};
  for (const auto& [encoding, expected] : rows) {
    Client client(Json{{"general", {{"positionEncodings", Json::array({encoding})}}}});
    client.open(uri, text);
    EXPECT_EQ(client.published(uri), expected) << encoding;
  }
}

/// A folder with an input in it that is not saved, and the address of a file there.
struct Project {
  TemporaryFolder folder = {};

  std::string address(const std::string& name) const {
    return address_of_path(std::filesystem::canonical(folder.path()).string() + "/" + name);
  }
};

TEST(Checking, ReadsTheChoicesOfTheProjectAgainWhenTheyChange) {
  const Project project;
  const std::string job = project.address("job.qin");
  project.folder.write(".quill-inp.toml", "ignore = [\"QL113\"]\n");
  Client client;
  client.open(job, "#sp\n");
  EXPECT_EQ(client.published(job), "");
  project.folder.write(".quill-inp.toml", "ignore = [\"QL112\", \"QL114\"]\n");
  client.notify(
      "workspace/didChangeWatchedFiles",
      {{"changes", Json::array({{{"uri", project.address(".quill-inp.toml")}, {"type", 2}}})}});
  EXPECT_EQ(client.published(job), "0:0-0:0 QL113\n");
  // A client that does not watch files sees the choices with its next change.
  std::filesystem::remove(project.folder.path(".quill-inp.toml"));
  project.folder.write(".quill-inp.toml", "ignore = [\"geometry\"]\n");
  client.change(job, Json::array({{{"text", "#sp\n#freq\n"}}}), 2);
  EXPECT_EQ(client.published(job), "1:0-1:5 QL208\n");
}

TEST(Checking, ShowsOnceThatTheChoicesCannotBeRead) {
  const Project project;
  const std::string job = project.address("job.qin");
  const std::string file = project.folder.write(".quill-inp.toml", "\nignroe = []\n");
  Client client;
  client.open(job, "#sp\n");
  client.change(job, Json::array({{{"text", "#sp\n\n"}}}), 2);
  EXPECT_EQ(client.published(job), "0:0-0:0 QL113\n");
  const std::vector<Json> shown = client.take("window/showMessage");
  ASSERT_EQ(shown.size(), 1U);
  EXPECT_EQ(shown[0]["params"]["type"], 1);
  EXPECT_EQ(shown[0]["params"]["message"], std::filesystem::canonical(file).string() +
                                               ":2: unknown key 'ignroe'; did you mean 'ignore'?");
}

TEST(Checking, ReadsReferencedFilesAsTheyAreInTheEditor) {
  const Project project;
  const std::string job = project.address("job.qin");
  const std::string water_file = project.address("water.xyz");
  const std::string missing = "2:4-2:13 QL402\n";
  const std::string without_atoms = "2:4-2:13 QL404\n";
  Client client;
  client.open(job, "#sp\n0 1\nXYZ water.xyz\n");
  EXPECT_EQ(client.published(job), missing);
  client.open(water_file, "1\n\nO 0 0 0\n");
  EXPECT_EQ(client.published(job), "");
  client.change(water_file, Json::array({{{"text", "none"}}}), 2);
  EXPECT_EQ(client.published(job), without_atoms);
  client.close(water_file);
  EXPECT_EQ(client.published(job), missing);
  project.folder.write("water.xyz", "1\n\nO 0 0 0\n");
  client.notify("workspace/didChangeWatchedFiles",
                {{"changes", Json::array({{{"uri", water_file}, {"type", 1}}})}});
  EXPECT_EQ(client.published(job), "");
}

TEST(Checking, AsksAClientThatPullsToDoSoWhenAnotherFileChanges) {
  const Project project;
  const std::string job = project.address("job.qin");
  Client client(pulling);
  client.open(job, "#sp\n0 1\nXYZ water.xyz\n");
  client.result("textDocument/diagnostic", names(job));
  client.take();
  client.open(project.address("water.xyz"), "1\n\nO 0 0 0\n");
  EXPECT_EQ(client.take("workspace/diagnostic/refresh").size(), 1U);
  EXPECT_EQ(client.result("textDocument/diagnostic", names(job))["items"], Json::array());
}

TEST(Checking, LooksForNoFilesOfATextWithoutAPath) {
  Client client;
  client.open("untitled:Untitled-1", "#sp\n0 1\nXYZ water.xyz\n");
  EXPECT_EQ(client.published("untitled:Untitled-1"), "");
}

/// An input with so many empty entries, a line that is dropped, and a command that comes too late.
std::string with_empty_entries(std::size_t count) {
  return "#opt(a," + std::string(count, ',') + "b)\n0 1\nO 0 0 0\nB 1 x\n#sp\n";
}

Json published_diagnostics(const std::string& text) {
  Client client;
  client.open(uri, text);
  return client.take("textDocument/publishDiagnostics").at(0)["params"]["diagnostics"];
}

Json pulled_diagnostics(const std::string& text) {
  Client client(pulling);
  client.open(uri, text);
  return client.result("textDocument/diagnostic", names(uri))["items"];
}

TEST(Checking, ShowsAThousandFindingsOfACodeAndHowManyMoreThereAre) {
  const Json all = published_diagnostics(with_empty_entries(1000));
  ASSERT_EQ(all.size(), 1002U);
  for (const std::size_t more : {1U, 99'000U}) {
    Json expected = all;
    expected.push_back({{"range", all[999]["range"]},
                        {"severity", 3},
                        {"source", "quill-inp"},
                        {"message", "and " + std::to_string(more) + " more of QL212"}});
    EXPECT_EQ(published_diagnostics(with_empty_entries(1000 + more)), expected) << more;
    EXPECT_EQ(pulled_diagnostics(with_empty_entries(1000 + more)), expected) << more;
  }
}

TEST(Checking, DoesNotCountFindingsThatTheProjectIgnores) {
  const Project project;
  const std::string job = project.address("job.qin");
  project.folder.write(".quill-inp.toml", "ignore = [\"QL212\", \"QL107\", \"QL108\"]\n");
  Client client;
  client.open(job, with_empty_entries(2000));
  EXPECT_EQ(client.published(job), "3:4-3:5 QL301\n");
}

std::string long_text() {
  std::string text = "#sp\n0 1\n";
  for (int i = 0; i < 30000; ++i) text += "O 0 0 " + std::to_string(2 * i) + "\n";
  return text + "P " + std::string(1 << 18, 'a') + "\n";
}

std::vector<std::string> kinds(const std::vector<Json>& messages) {
  std::vector<std::string> kinds;
  for (const Json& message : messages)
    kinds.push_back(message["params"]["value"]["kind"].get<std::string>());
  return kinds;
}

TEST(Checking, ShowsProgressOnLongTextsToAClientThatHasAgreed) {
  Client client(Json{{"window", {{"workDoneProgress", true}}}});
  const std::vector<Json> asked = client.take("window/workDoneProgress/create");
  ASSERT_EQ(asked.size(), 1U);
  client.send(result_message(asked[0]["id"], nullptr));
  client.open(uri, water);
  EXPECT_TRUE(client.take("$/progress").empty());
  client.open(uri, long_text());
  const std::vector<Json> progress = client.take("$/progress");
  EXPECT_EQ(kinds(progress), (std::vector<std::string>{"begin", "report", "end"}));
  EXPECT_EQ(progress[0]["params"]["token"], asked[0]["params"]["token"]);
  EXPECT_EQ(progress[0]["params"]["value"]["title"], "Checking job.qin");
  EXPECT_EQ(client.take("window/workDoneProgress/create").size(), 1U);
}

TEST(Checking, ShowsNoProgressToAClientThatHasNotAgreed) {
  Client refusing(Json{{"window", {{"workDoneProgress", true}}}});
  const std::vector<Json> asked = refusing.take("window/workDoneProgress/create");
  ASSERT_EQ(asked.size(), 1U);
  refusing.send(error_message(asked[0]["id"], {ErrorCode::MethodNotFound, "no"}));
  Client unable;
  for (Client* client : {&refusing, &unable}) {
    client->open(uri, long_text());
    EXPECT_TRUE(client->take("$/progress").empty());
    EXPECT_TRUE(client->take("window/workDoneProgress/create").empty());
  }
}

}  // namespace

}  // namespace kelp::input::quill::language_server
