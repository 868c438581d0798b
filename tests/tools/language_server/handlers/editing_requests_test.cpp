#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "kelp/input/quill/reader.hpp"
#include "language_server/documents/open_documents.hpp"
#include "support/temporary_folder.hpp"
#include "tools/language_server/support/client.hpp"

namespace kelp::input::quill::language_server {

namespace {

constexpr const char* uri = "file:///nowhere/job.qin";
const Json literal = {
    {"textDocument", {{"codeAction", {{"codeActionLiteralSupport", Json::object()}}}}}};

/// Makes edits as a client does: all of them count positions of the old text.
std::string edited(const std::string& text, const Json& edits) {
  OpenDocument document(uri, 1, text, PositionEncoding::Utf16);
  for (auto edit = edits.rbegin(); edit != edits.rend(); ++edit)
    document.change(2, Json::array({{{"range", (*edit)["range"]}, {"text", (*edit)["newText"]}}}));
  return document.text();
}

const std::string untidy = "#opt( tight )\n0 1\nO 0 0 0.117\nH 0.000000 0.757000 -0.469000\n";

TEST(Formatting, ChangesOnlyLinesThatDiffer) {
  Client client;
  client.open(uri, untidy);
  Json params = names(uri);
  params["options"] = {{"tabSize", 2}, {"insertSpaces", true}};
  const Json edits = client.result("textDocument/formatting", params);
  const Json canonical =
      client.result("workspace/executeCommand",
                    {{"command", "quillInp.canonicalText"}, {"arguments", Json::array({uri})}});
  EXPECT_EQ(edited(untidy, edits), canonical);
  client.change(uri, Json::array({{{"text", canonical}}}), 2);
  EXPECT_EQ(client.result("textDocument/formatting", params), Json::array());
}

TEST(Formatting, IsRefusedWithTheReasonWhenSomethingWouldBeLost) {
  Client client;
  client.open(uri, "#opt(tight) and more\n0 1\nO 0 0 0\n");
  const Json answer = client.request("textDocument/formatting", names(uri));
  EXPECT_EQ(answer["error"]["code"], -32803);
  const std::string message = answer["error"]["message"];
  EXPECT_EQ(message.substr(0, 22), "not formatted: line 1 ") << message;
  EXPECT_NE(message.find("and more"), std::string::npos) << message;
}

TEST(Formatting, IsRefusedForATextThatIsNoInput) {
  Client client;
  client.open(uri, "int main() {}\n");
  const std::string message =
      client.request("textDocument/formatting", names(uri))["error"]["message"];
  EXPECT_EQ(message.substr(0, 56), "not formatted: the text does not look like a QUILL input")
      << message;
}

TEST(Formatting, RoundsAsTheToolDoesWhateverTheProjectAccepts) {
  const TemporaryFolder folder;
  folder.write(".quill-inp.toml", "max-change = 0\n");
  const std::string job = "file://" + folder.path("job.qin");
  const std::string text = "#sp\n0 1\nHe 0 0 0.12345678\n";
  Client client;
  client.open(job, text);
  EXPECT_EQ(client.published(job), "2:7-2:17 QL502\n");
  EXPECT_EQ(edited(text, client.result("textDocument/formatting", names(job))),
            "#sp\n\n0 1\nHe       0.000000      0.000000      0.123457\n");
}

TEST(Formatting, OfARangeLeavesOtherLinesAlone) {
  Client client;
  client.open(uri, untidy);
  Json params = names(uri);
  params["range"] = to_json(PositionRange{{0, 3}, {0, 4}});
  const std::string text = edited(untidy, client.result("textDocument/rangeFormatting", params));
  EXPECT_EQ(text.substr(0, text.find('\n') + 1), "#opt(tight)\n");
  EXPECT_NE(text.find("O 0 0 0.117\n"), std::string::npos) << text;
}

TEST(Formatting, OfALineLeavesTheLineBeforeAlone) {
  const std::string text = "#sp\n#  freq\n0 1\nO 0 0 0\n";
  Client client;
  client.open(uri, text);
  Json params = names(uri);
  params["range"] = to_json(PositionRange{{2, 0}, {2, 3}});
  EXPECT_EQ(edited(text, client.result("textDocument/rangeFormatting", params)), text);
  params["range"] = to_json(PositionRange{{0, 0}, {1, 0}});
  EXPECT_EQ(edited(text, client.result("textDocument/rangeFormatting", params)), text);
  params["range"] = to_json(PositionRange{{1, 2}, {1, 2}});
  EXPECT_EQ(edited(text, client.result("textDocument/rangeFormatting", params)),
            "#sp\n#freq\n\n0 1\nO 0 0 0\n");
}

Json action_params(const PositionRange& range, const Json& context) {
  Json params = names(uri);
  params["range"] = to_json(range);
  params["context"] = context;
  return params;
}

/// Returns the titles of the quick fixes for a text, and the text after each.
std::string fixes(const std::string& text, const PositionRange& range) {
  Client client(literal);
  client.open(uri, text);
  std::string shown;
  const Json context = {{"diagnostics", Json::array()}, {"only", Json::array({"quickfix"})}};
  for (const Json& action : client.result("textDocument/codeAction", action_params(range, context)))
    shown += action["title"].get<std::string>() + (action.contains("isPreferred") ? "!\n" : "\n") +
             edited(text, action["edit"]["changes"][uri]);
  return shown;
}

struct Row {
  std::string name;
  std::string text;
  PositionRange range;
  std::string fixes;
};

class QuickFixes : public testing::TestWithParam<Row> {};

TEST_P(QuickFixes, CorrectTheText) {
  EXPECT_EQ(fixes(GetParam().text, GetParam().range), GetParam().fixes);
}

const Row rows[] = {
    {"ASafeCorrectionIsPreferred",
     "#sp\n0 1\nO 0 0 0,5\n",
     {{2, 0}, {2, 9}},
     "write a symbol and three numbers with decimal points!\n#sp\n0 1\nO 0 0 0.5\n"},
    {"NothingElsewhere", "#sp\n0 1\nO 0 0 0,5\n", {{0, 0}, {1, 0}}, ""},
    {"ARepeatedParameter",
     "#sp(a=1, b, A = 2, c)\n0 1\nO 0 0 0\n",
     {{0, 12}, {0, 12}},
     "remove this parameter\n#sp(a=1, b, c)\n0 1\nO 0 0 0\n"},
    {"ARepeatedParameterAtTheEnd",
     "#sp( 'a,b', c, \"d,e\", c )\n0 1\nO 0 0 0\n",
     {{0, 0}, {0, 30}},
     "remove this parameter\n#sp( 'a,b', c, \"d,e\")\n0 1\nO 0 0 0\n"},
    {"ARepeatedParameterOfAListWithoutAnEnd",
     "#sp(a, b, a=1\n0 1\nO 0 0 0\n",
     {{0, 10}, {0, 10}},
     "remove this parameter\n#sp(a, b\n0 1\nO 0 0 0\n"},
    {"ARepeatedAssignment",
     "#sp\n#model=a\n#model=b\n0 1\nO 0 0 0\n",
     {{2, 1}, {2, 1}},
     "remove this line\n#sp\n#model=a\n0 1\nO 0 0 0\n"},
    {"AValueThatIsCut",
     "#sp(d=(e,f), g)\n0 1\nO 0 0 0\n",
     {{0, 6}, {0, 6}},
     "put quotes around the value\n#sp(d=\"(e,f)\", g)\n0 1\nO 0 0 0\n"},
    {"AValueThatIsCutAndHasNoEnd", "#sp(d=((e,f, g)\n0 1\nO 0 0 0\n", {{0, 6}, {0, 6}}, ""},
    {"AConstraintThatIsReadAsAnAtom",
     "#sp\n0 1\nO 0 0 0.1\nH 0 1 0.5\nH 1 0 0.5\nA 1 2 3\nB 1 2\n",
     {{5, 0}, {5, 0}},
     "move this line after the first post-processing line\n"
     "#sp\n0 1\nO 0 0 0.1\nH 0 1 0.5\nH 1 0 0.5\nB 1 2\nA 1 2 3\n"},
    {"AConstraintBeforeTheLastLineWithoutAnEnd",
     "#sp\n0 1\nO 0 0 0.1\nH 0 1 0.5\nH 1 0 0.5\nA 1 2 3\nB 1 2",
     {{5, 0}, {5, 0}},
     "move this line after the first post-processing line\n"
     "#sp\n0 1\nO 0 0 0.1\nH 0 1 0.5\nH 1 0 0.5\nB 1 2\nA 1 2 3"},
    {"AConstraintBeforeTheLastLineOfATextWithCarriageReturns",
     "#sp\r\n0 1\r\nO 0 0 0.1\r\nH 0 1 0.5\r\nH 1 0 0.5\r\nA 1 2 3\r\nB 1 2",
     {{5, 0}, {5, 0}},
     "move this line after the first post-processing line\n"
     "#sp\r\n0 1\r\nO 0 0 0.1\r\nH 0 1 0.5\r\nH 1 0 0.5\r\nB 1 2\r\nA 1 2 3"},
    {"TwoConstraintsAfterALineThatIsDropped",
     "#sp\n0 1\nO 0 0 0.1\nH 0 1 0.5\nH 1 0 0.5\nA 1 2 3\nA 3 2 1\nB 1 x\nC 1\n",
     {{5, 0}, {6, 0}},
     "move this line after the first post-processing line\n"
     "#sp\n0 1\nO 0 0 0.1\nH 0 1 0.5\nH 1 0 0.5\nA 3 2 1\nB 1 x\nC 1\nA 1 2 3\n"
     "move this line after the first post-processing line\n"
     "#sp\n0 1\nO 0 0 0.1\nH 0 1 0.5\nH 1 0 0.5\nA 1 2 3\nB 1 x\nC 1\nA 3 2 1\n"},
    {"AConstraintThatWouldBeRawText",
     "#sp\n0 1\nC 0 0 0\nO 0 0 3\n\nB 1 2 3\nC 1\n",
     {{5, 0}, {5, 0}},
     ""},
    {"AConstraintThatCannotBeMoved",
     "#sp\n0 1\nO 0 0 0.1\nH 0 1 0.5\nH 1 0 0.5\nA 1 2 3\n",
     {{5, 0}, {5, 0}},
     ""},
};

INSTANTIATE_TEST_SUITE_P(Table, QuickFixes, testing::ValuesIn(rows),
                         [](const auto& row) { return row.param.name; });

/// Returns how many quick fixes there are for a cut value of so many bytes.
std::size_t count_fixes_of_value(std::size_t bytes) {
  const std::string value = "(e," + std::string(bytes - 4, 'f') + ")";
  const std::string fixed = fixes("#sp(d=" + value + ")\n0 1\nO 0 0 0\n", {{0, 6}, {0, 6}});
  return static_cast<std::size_t>(std::count(fixed.begin(), fixed.end(), '"')) / 2;
}

TEST(QuickFixes, OfACutValueAreLookedForInTenThousandBytes) {
  EXPECT_EQ(count_fixes_of_value(10'000), 1U);
  EXPECT_EQ(count_fixes_of_value(10'001), 0U);
}

TEST(QuickFixes, MoveEachOfManyConstraintsSoThatItIsReadAsOne) {
  const std::string start = "#sp\n0 1\nO 0 0 0.1\nH 0 1 0.5\nH 1 0 0.5\n";
  std::string constraints;
  for (int i = 1; i <= 7; ++i) constraints += "A 1 2 " + std::to_string(i + 2) + "\n";
  Client client(literal);
  const std::string text = start + constraints + "C 1\nC 2\n";
  client.open(uri, text);
  const Json context = {{"diagnostics", Json::array()}, {"only", Json::array({"quickfix"})}};
  const Json actions =
      client.result("textDocument/codeAction", action_params({{0, 0}, {12, 0}}, context));
  ASSERT_EQ(actions.size(), 7U);
  for (std::size_t i = 0; i < actions.size(); ++i) {
    const std::string line = constraints.substr(8 * i, 8);
    std::string others = constraints;
    others.erase(8 * i, 8);
    const std::string moved = start + others + "C 1\n" + line + "C 2\n";
    EXPECT_EQ(edited(text, actions[i]["edit"]["changes"][uri]), moved);
    const QuillInput input = parse_string(moved).input;
    ASSERT_EQ(input.post_commands.size(), 3U);
    EXPECT_EQ(input.post_commands[1].kind, PostCommandKind::AngleConstraint);
    EXPECT_EQ(input.geometry.atoms.size(), 9U);
  }
}

const std::string commas = "#sp\n0 1\nO 0 0 0,5\nH 0 0 1,5\n";

std::vector<std::string> kinds(const Json& only) {
  Client client(literal);
  client.open(uri, commas);
  Json context = {{"diagnostics", Json::array()}};
  if (!only.is_null()) context["only"] = only;
  std::vector<std::string> kinds;
  for (const Json& action :
       client.result("textDocument/codeAction", action_params({{2, 0}, {2, 1}}, context)))
    kinds.push_back(action["kind"].get<std::string>());
  return kinds;
}

TEST(CodeActions, AreOfTheKindsThatTheClientAsksFor) {
  using Kinds = std::vector<std::string>;
  EXPECT_EQ(kinds(nullptr), (Kinds{"source.fixAll"}));
  EXPECT_EQ(kinds(Json::array({"source"})), (Kinds{"source.fixAll"}));
  EXPECT_EQ(kinds(Json::array({"source.fixAll"})), (Kinds{"source.fixAll"}));
  EXPECT_EQ(kinds(Json::array({"sourc"})), Kinds{});
  EXPECT_EQ(kinds(Json::array({"refactor", "quickfix"})), Kinds{});
  EXPECT_EQ(kinds(Json::array({""})), (Kinds{"source.fixAll"}));
}

TEST(CodeActions, MakeAllSafeCorrectionsAtOnceForTheVersionOfTheText) {
  Client client(Json{{"textDocument", literal["textDocument"]},
                     {"workspace", {{"workspaceEdit", {{"documentChanges", true}}}}}});
  client.open(uri, commas, 4);
  const Json actions = client.result(
      "textDocument/codeAction", action_params({{0, 0}, {0, 0}}, {{"diagnostics", Json::array()}}));
  ASSERT_EQ(actions.size(), 1U);
  EXPECT_EQ(actions[0]["title"], "make all safe corrections");
  const Json& change = actions[0]["edit"]["documentChanges"][0];
  EXPECT_EQ(change["textDocument"], (Json{{"uri", uri}, {"version", 4}}));
  EXPECT_EQ(edited(commas, change["edits"]), "#sp\n0 1\nO 0 0 0.5\nH 0 0 1.5\n");
}

std::string repeated(const std::string& line, std::size_t count) {
  std::string text;
  for (std::size_t i = 0; i < count; ++i) text += line;
  return text;
}

/// Returns a text after the only action of a kind at its end.
std::string after_action(const std::string& text, const std::string& kind) {
  Client client(literal);
  client.open(uri, text);
  const Json context = {{"diagnostics", Json::array()}, {"only", Json::array({kind})}};
  const std::size_t end = 1'000'000;
  const Json actions =
      client.result("textDocument/codeAction", action_params({{3, 0}, {end, 0}}, context));
  return actions.size() == 1 ? edited(text, actions[0]["edit"]["changes"][uri]) : "";
}

const std::string helium = "#sp\n0 1\nHe 0 0 0\n";

TEST(CodeActions, CorrectFindingsThatAreNotShown) {
  const std::string blanks = helium + repeated(
                                          "C\xC2\xA0"
                                          "1\n",
                                          1001);
  EXPECT_EQ(after_action(blanks, "source.fixAll"), helium + repeated("C 1\n", 1001));
}

TEST(CodeActions, CorrectAFindingInMoreThanAThousandPlaces) {
  const std::string commas_in_lines = helium + repeated("He 0 0 1,5\n", 1001);
  EXPECT_EQ(after_action(commas_in_lines, "quickfix"), helium + repeated("He 0 0 1.5\n", 1001));
}

TEST(CodeActions, NameTheDiagnosticThatTheyCorrect) {
  Client client(literal);
  client.open(uri, commas);
  const Json shown = client.take("textDocument/publishDiagnostics").at(0)["params"]["diagnostics"];
  Json of_another_code = shown[0];
  of_another_code["code"] = "QL999";
  Json elsewhere = shown[0];
  elsewhere["range"]["start"]["line"] = 1;
  const Json context = {
      {"diagnostics", Json::array({of_another_code, shown[0], elsewhere, 1, nullptr})},
      {"only", Json::array({"quickfix"})}};
  const Json actions =
      client.result("textDocument/codeAction", action_params({{2, 6}, {2, 6}}, context));
  ASSERT_EQ(actions.size(), 1U);
  EXPECT_EQ(actions[0]["diagnostics"], Json::array({shown[0]}));
}

TEST(CodeActions, AreNotSentToAClientThatKnowsCommandsOnly) {
  Client client;
  client.open(uri, commas);
  EXPECT_EQ(client.result("textDocument/codeAction",
                          action_params({{2, 6}, {2, 6}}, {{"diagnostics", Json::array()}})),
            Json::array());
}

}  // namespace

}  // namespace kelp::input::quill::language_server
