#include <gtest/gtest.h>

#include <string>

#include "tools/language_server/support/client.hpp"

namespace kelp::input::quill::language_server {

namespace {

constexpr const char* uri = "file:///nowhere/job.qin";

Json command(const std::string& name, const Json& arguments) {
  return {{"command", name}, {"arguments", arguments}};
}

Json result_of(const std::string& text, const std::string& name) {
  Client client;
  client.open(uri, text);
  return client.result("workspace/executeCommand", command(name, Json::array({uri})));
}

TEST(Commands, ShowWhatTheReaderMadeOfEveryLine) {
  EXPECT_EQ(result_of("#opt\n\n0 1\nO 0 0 0\nB 1 x\n", "quillInp.showLines"),
            "1  command 1                #opt\n"
            "2  blank\n"
            "3  charge and multiplicity  0 1\n"
            "4  atom 1                   O 0 0 0\n"
            "5  dropped                  B 1 x\n");
}

TEST(Commands, ShowTheCanonicalText) {
  EXPECT_EQ(result_of("# opt( a='x, y' )\n0 1\nO 0 0 0\n", "quillInp.canonicalText"),
            "#opt(a=\"x, y\")\n\n0 1\nO        0.000000      0.000000      0.000000\n");
}

TEST(Commands, ShowTheStructure) {
  const Json structure =
      result_of("0 1\nO 0 0 0.5\nH 1 nan 0\r\nP a\nB 1 9\rx\nS 1 2 1.5 3\n", "quillInp.structure");
  EXPECT_EQ(structure["atoms"], Json::parse(R"([{"symbol":"O","position":[0.0,0.0,0.5],"line":1},
                            {"symbol":"H","position":[1.0,null,0.0],"line":2}])"));
  EXPECT_EQ(structure["constraints"], Json::parse(R"([{"kind":"scan","atoms":[1,2],"line":6}])"));
}

TEST(Commands, ShowTheStructureOfAReferencedFileThatIsOpen) {
  Client client;
  client.open(uri, "0 1\nXYZ water.xyz\nB 1 2\n");
  client.open("file:///nowhere/water.xyz", "1\n\nO 1 2 3\n");
  EXPECT_EQ(
      client.result("workspace/executeCommand", command("quillInp.structure", Json::array({uri}))),
      Json::parse(R"({"atoms":[{"symbol":"O","position":[1.0,2.0,3.0],"line":null}],
                            "constraints":[{"kind":"bond","atoms":[1,2],"line":2}]})"));
}

TEST(Commands, AreRefusedIfTheyAreUnknownOrNameNoText) {
  Client client;
  client.open(uri, "");
  const Json refused[] = {command("quillInp.none", Json::array({uri})),
                          command("quillInp.showLines", Json::array()),
                          command("quillInp.showLines", Json::array({1})),
                          command("quillInp.showLines", Json::array({uri, uri})),
                          command("quillInp.showLines", Json::array({"file:///other"})),
                          command("quillInp.showLines", nullptr)};
  for (const Json& params : refused)
    EXPECT_EQ(client.request("workspace/executeCommand", params)["error"]["code"], -32602)
        << params;
}

}  // namespace

}  // namespace kelp::input::quill::language_server
