#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "support/temporary_folder.hpp"
#include "tools/quill-inp/support/call.hpp"
#include "tools/quill-inp/support/files.hpp"

namespace kelp::input::quill::tool {
namespace {

class JsonVerbs : public testing::TestWithParam<Call> {};

const std::string small_json =
    "{\n"
    "  \"commands\": [\n"
    "    {\"name\": \"model\", \"kind\": \"assignment\", \"value\": {\"bytes\": \"ff22\"}}\n"
    "  ],\n"
    "  \"geometry\": {\n"
    "    \"kind\": \"none\",\n"
    "    \"charge\": 0,\n"
    "    \"multiplicity\": 1\n"
    "  },\n"
    "  \"post_commands\": []\n"
    "}\n";

const Call calls[] = {
    {"Json", {"json", "-"}, ended(0, small_json, ""), "#model = \xFF\"\n0 1\n"},
    {"FromJson", {"from-json", "-"}, ended(0, "#model = \xFF\"\n\n0 1\n", ""), small_json},
    {"JsonOfALineThatTheReaderDrops",
     {"json", "two_opts.qin"},
     ended(0,
           "{\n  \"commands\": [\n"
           "    {\"name\": \"opt\", \"kind\": \"parameter_list\", \"parameters\": [{\"name\": "
           "\"maxiter\", \"value\": \"50\"}]},\n"
           "    {\"name\": \"Opt\", \"kind\": \"parameter_list\", \"parameters\": [{\"name\": "
           "\"maxiter\", \"value\": \"70\"}]}\n"
           "  ],\n  \"geometry\": {\n    \"kind\": \"xyz_file\",\n    \"xyz_files\": [\"a b.xyz\", "
           "\"c.xyz\"]\n  },\n  \"post_commands\": []\n}\n",
           "two_opts.qin:2: warning: ignored trailing text after QUILL header command\n"
           "two_opts.qin:6: warning: ignored unrecognized QUILL post-processing line\n")},
    {"FromJsonWithNegativeZeros",
     {"from-json", "-"},
     ended(0, "0 1\nHe      -0.000000      0.000000     -0.000000\n\nS 1 2 -0 3\n", ""),
     R"({"geometry": {"kind": "atoms", "charge": -0,
         "atoms": [{"symbol": "He", "x": -0, "y": 0, "z": -0.0}]},
         "post_commands": [
         {"kind": "scan", "atom_indices": [1, 2], "scan_value": -0, "scan_steps": 3}]})"},
    {"FromJsonWithQuotesWhereTheyMustBe",
     {"from-json", "-"},
     ended(0, "#a(b=\"c,d\")\n\n0 1\n", ""),
     R"({"commands": [{"name": "a", "kind": "parameter_list",
         "parameters": [{"name": "b", "value": "c,d"}]}],
         "geometry": {"kind": "none", "charge": 0}})"},
    {"WarningsOfWhatWasMade",
     {"from-json", "-"},
     ended(0, "", "<stdout>: warning: No QUILL coordinate section found\n"),
     "{}"},
    {"FromJsonThatIsNone",
     {"from-json", "-"},
     ended(2, "",
           "<stdin>:1: error: not JSON: parse error at column 1: syntax error while parsing value "
           "- invalid literal; last read: '#'\n"),
     "#opt\n"},
    {"FromJsonThatIsNoneOnALaterLine",
     {"from-json", "--stdin-filename=a.json", "-"},
     ended(2, "",
           "a.json:3: error: not JSON: parse error at column 15: syntax error while parsing object "
           "- unexpected end of input; expected '}'\n"),
     "{\n\n\"commands\": []"},
    {"FromJsonWithTwoMembersOfAName",
     {"from-json", "-"},
     ended(2, "", "<stdin>:3: error: two members 'geometry' in one JSON object\n"),
     "{\n\"geometry\": {\"kind\": \"none\"},\n\"geometry\": {\"kind\": \"none\"}}"},
    {"FromJsonOfAnotherForm",
     {"from-json", "--stdin-filename=a.json", "-"},
     ended(2, "", "a.json:1: error: /geometry: unknown member 'knd'; did you mean 'kind'?\n"),
     R"({"geometry": {"knd": "none"}})"},
    {"FromJsonThatNoTextHolds",
     {"from-json", "-"},
     ended(2, "",
           "<stdin>: error: refused: the command 'a' is a flag and has a value or parameters that "
           "would not be written; use --allow-loss to write it anyway\n"),
     R"({"commands": [{"name": "a", "kind": "flag", "parameters": [{"name": "b"}]}],
         "geometry": {"kind": "none", "charge": 0}})"},
    {"FromJsonThatNoTextHoldsAllTheSame",
     {"from-json", "-q", "--allow-loss", "-"},
     ended(0, "#a\n\n0 1\n", ""),
     R"({"commands": [{"name": "a", "kind": "flag", "parameters": [{"name": "b"}]}],
         "geometry": {"kind": "none", "charge": 0}})"},
    {"FromJsonWithTooManyDigits",
     {"from-json", "-q", "-"},
     ended(2, "",
           "<stdin>: error: refused: line 3 would be read differently: the scan value of "
           "post-processing line 1 is 123.457 instead of 123.45678; use --allow-loss to write it "
           "anyway\n"),
     R"({"geometry": {"kind": "xyz_file", "xyz_files": ["a"]}, "post_commands": [
         {"kind": "scan", "atom_indices": [1, 2], "scan_value": 123.45678, "scan_steps": 1}]})"},
    {"NoFile",
     {"json", "none.qin"},
     ended(2, "", "none.qin: error: cannot be opened: No such file or directory\n")},
};

TEST_P(JsonVerbs, TurnInputsIntoJsonAndBack) { expect_outcome(GetParam()); }

INSTANTIATE_TEST_SUITE_P(Table, JsonVerbs, testing::ValuesIn(calls),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(JsonVerbs, BringBackTheCanonicalTextOfEveryExample) {
  const TemporaryFolder folder;
  copy_example_inputs(folder.path());
  int count = 0;
  for (const std::string& name : names_in(folder.path())) {
    if (std::filesystem::path(name).extension() != ".qin") continue;
    const Outcome canonical = run_in(folder.path(), {"fmt", "-q", "--allow-loss", name});
    const Outcome json = run_in(folder.path(), {"json", "-q", name});
    EXPECT_EQ(json.code, 0);
    EXPECT_EQ(run_in(folder.path(), {"from-json", "-q", "-"}, json.out), canonical) << name;
    ++count;
  }
  EXPECT_EQ(count, 12);
}

}  // namespace
}  // namespace kelp::input::quill::tool
