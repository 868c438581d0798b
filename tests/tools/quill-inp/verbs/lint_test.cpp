#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "support/temporary_folder.hpp"
#include "tools/quill-inp/support/call.hpp"
#include "tools/quill-inp/support/files.hpp"
#include "tools/quill-inp/support/program.hpp"

namespace kelp::input::quill::tool {
namespace {

const std::string one_clean = "quill-inp: note: 1 file read, 0 with findings\n";
const std::string one_found = "quill-inp: note: 1 file read, 1 with findings\n";

Outcome usage_error(const std::string& message) {
  return ended(2, "",
               "quill-inp: error: " + message + "\nquill-inp: note: see 'quill-inp lint --help'\n");
}

const std::string comma = "#opt\n0 1\nH 0 0 0\nH 0 0 1,5\n";
const std::string comma_found =
    "<stdin>:4:7: error: this line ended the atoms after 1 atom: '1,5' is not a number [QL104]\n"
    "    H 0 0 1,5\n"
    "          ^^^\n"
    "    to fix: write a symbol and three numbers with decimal points\n";

const std::string info = "#opt\nHe 0 0 0\n";
const std::string info_found =
    "<stdin>:2:1: info: no line gives charge and multiplicity, so the reader assumes 0 and 1 "
    "[QL109]\n"
    "    He 0 0 0\n"
    "    ^^^^^^^^\n"
    "    to fix: write a line such as '0 1' before the atoms\n";

class Lint : public testing::TestWithParam<Call> {};

const Call calls[] = {
    {"FindsNothing", {"lint", "water.qin"}, ended(0, "", one_clean)},
    {"SaysNothingQuietly", {"lint", "-q", "water.qin"}, ended(0, "", "")},
    {"ShowsTheLineAndThePlace", {"lint", "-"}, ended(1, comma_found, one_found), comma},
    {"HasAnotherName", {"check", "-q", "-"}, ended(1, comma_found, ""), comma},
    {"EscapesWhatATerminalWouldObey",
     {"lint", "-q", "--select=QL206", "-"},
     ended(1,
           "<stdin>:2:2: warning: this is a command named 'a \\x1b[2J': an input has no comments "
           "[QL206]\n"
           "    #a \\x1b[2J\n"
           "     ^^^^^^^^^\n"
           "    to fix: remove the line\n",
           ""),
     "#opt\n#a \x1b[2J\n0 1\nHe 0 0 0\n"},
    {"PutsTheCaretUnderTheCharacter",
     {"lint", "-q", "-"},
     ended(
         1,
         "<stdin>:2:10: warning: the value '\u22121' looks like a number, and has characters that "
         "no number has [QL217]\n"
         "    #\u00E9t\u00E9 = \u22121\n"
         "           ^^\n"
         "    to fix: type the number again\n",
         ""),
     "#opt\n#\u00E9t\u00E9 = \u22121\n0 1\nHe 0 0 0\n"},
    {"ShowsPartOfALongLine",
     {"lint", "-q", "-"},
     ended(1,
           "<stdin>:1:206: warning: ignored trailing text after QUILL header command: 'x' is lost "
           "[QL202]\n"
           "    ..." +
               std::string(78, 'a') + ") x\n" + std::string(87, ' ') +
               "^\n"
               "    to fix: write another command on a separate line\n",
           ""),
     "#opt(" + std::string(198, 'a') + ") x\n0 1\nHe 0 0 0\n"},
    {"FailsFromWarningOn", {"lint", "-q", "-"}, ended(0, info_found, ""), info},
    {"FailsFromInfoOn", {"lint", "-q", "--fail-on=info", "-"}, ended(1, info_found, ""), info},
    {"FailsFromErrorOn",
     {"lint", "-q", "--fail-on", "error", "-"},
     ended(1, comma_found, ""),
     comma},
    {"NeverFails", {"lint", "-q", "--fail-on=never", "-"}, ended(0, comma_found, ""), comma},
    {"RefusesAnUnknownSeverity",
     {"lint", "--fail-on=warnings", "-"},
     usage_error("--fail-on takes error, warning, info or never, not 'warnings'; did you mean "
                 "'warning'?")},
    {"SelectsAGroup", {"lint", "-q", "--select=chemistry", "-"}, ended(0, "", ""), comma},
    {"SelectsCodes", {"lint", "-q", "--select=ql101,QL104", "-"}, ended(1, comma_found, ""), comma},
    {"IgnoresCodesAndGroups",
     {"lint", "-q", "--ignore=header", "--ignore=QL109,QL104", "-"},
     ended(0, "", ""),
     comma},
    {"RefusesAnUnknownCode",
     {"lint", "--select=QL104,geometri", "-"},
     usage_error("--select takes codes and groups, and 'geometri' is neither; did you mean "
                 "'geometry'?")},
    {"RefusesNoCode",
     {"lint", "--ignore=", "-"},
     usage_error("--ignore takes codes and groups, and '' is neither")},
    {"RefusesAnUnknownForm",
     {"lint", "--format=xml", "-"},
     usage_error("--format takes text, json, github or sarif, not 'xml'")},
    {"MarksLinesOfAChange",
     {"lint", "-q", "--format=github", "--stdin-filename=100%,a:b.qin", "-"},
     ended(1,
           "::error file=100%25%2Ca%3Ab.qin,line=4,col=7,title=QL104::this line ended the atoms "
           "after 1 atom: '1,5' is not a number\n",
           ""),
     comma},
    {"ShowsWhatItWouldMend",
     {"lint", "--fix", "--diff", "-"},
     ended(1,
           "--- <stdin>\n+++ <stdin>\n@@ -1,4 +1,4 @@\n #opt\n 0 1\n H 0 0 0\n-H 0 0 1,5\n"
           "+H 0 0 1.5\n",
           ""),
     comma},
    {"ShowsNothingWhereThereIsNothingToMend",
     {"lint", "--fix", "--diff", "water.qin"},
     ended(0, "", "")},
    {"MendsNoStandardInput",
     {"lint", "--fix", "-"},
     ended(2, "",
           "<stdin>: error: standard input cannot be changed in place\n"
           "quill-inp: note: 0 files read, 0 with findings\n"),
     comma},
    {"NeedsFixForADiff", {"lint", "--diff", "-"}, usage_error("--diff needs --fix")},
    {"CountsInTextAlone",
     {"lint", "--statistics", "--format=json", "-"},
     usage_error("--statistics is for --format=text")},
    {"CountsCodes",
     {"lint", "-q", "--statistics", "--fail-on=never", "-"},
     ended(0, comma_found + "      1  QL104  a line that ends the atoms too early\n", ""),
     comma},
};

TEST_P(Lint, EndsAsItShould) { expect_outcome(GetParam()); }

INSTANTIATE_TEST_SUITE_P(Table, Lint, testing::ValuesIn(calls),
                         [](const auto& call) { return std::string(call.param.name); });

/// A line in which 1,002 entries are empty, and one finding that is an error.
const std::string many = "#opt(" + std::string(1001, ',') + ")\n0 1\nHe 0 0 0\nC 0\n";

/// The lines of a text from a number on, counted from 0.
std::string lines_from(const std::string& text, std::size_t first) {
  std::size_t at = 0;
  for (; first > 0; --first) at = text.find('\n', at) + 1;
  return text.substr(at);
}

const std::string last_of_many =
    "<stdin>:4:3: error: the atom number '0' is below 1 [QL303]\n"
    "    C 0\n"
    "      ^\n"
    "    to fix: count atoms from 1\n"
    "<stdin>: and 2 more of QL212\n";

TEST(LintOfManyFindings, ShowsTheFirstThousandOfACodeAndCountsTheOthers) {
  const Outcome outcome = run_in(".", {"lint", "--statistics", "--fail-on=error", "-"}, many);
  EXPECT_EQ(outcome.code, 1);
  EXPECT_EQ(outcome.err, one_found);
  EXPECT_EQ(lines_from(outcome.out, std::size_t{4} * 1000),
            last_of_many +
                "   1002  QL212  an empty entry in a parameter list\n"
                "      1  QL303  an atom number below 1\n");
}

TEST(LintOfManyFindings, CountsThemInEveryForm) {
  const Outcome github = run_in(".", {"lint", "-q", "--format=github", "-"}, many);
  EXPECT_EQ(lines_from(github.out, 1000),
            "::error file=<stdin>,line=4,col=3,title=QL303::the atom number '0' is below 1\n"
            "::warning file=<stdin>,title=QL212::and 2 more of QL212\n");
  const std::string json = run_in(".", {"lint", "-q", "--format=json", "-"}, many).out;
  EXPECT_EQ(json.substr(json.rfind("], ")), "], \"more\": {\"QL212\": 2}}\n");
  const std::string sarif = run_in(".", {"lint", "-q", "--format=sarif", "-"}, many).out;
  const std::size_t begin = sarif.find("\"invocations\"");
  EXPECT_EQ(
      sarif.substr(begin, sarif.find("\"results\"") - begin),
      "\"invocations\": [\n"
      "        {\n"
      "          \"executionSuccessful\": true,\n"
      "          \"toolExecutionNotifications\": [\n"
      "            {\"level\": \"warning\", \"message\": {\"text\": \"and 2 more of QL212\"}, "
      "\"associatedRule\": {\"id\": \"QL212\"}, \"locations\": [{\"physicalLocation\": "
      "{\"artifactLocation\": {\"uri\": \"%3Cstdin%3E\"}}}]}\n"
      "          ]\n"
      "        }\n"
      "      ],\n"
      "      ");
}

TEST(LintOfManyFindings, CountsOnlyWhatIsSelected) {
  const Outcome outcome = run_in(".", {"lint", "-q", "--ignore=QL212", "-"}, many);
  EXPECT_EQ(outcome.out, last_of_many.substr(0, last_of_many.find("<stdin>: and")));
  EXPECT_EQ(
      run_in(".", {"lint", "-q", "--select=QL303", "--format=json", "-"}, many).out.find("QL212"),
      std::string::npos);
}

TEST(LintOfManyFindings, FixesAllOfThem) {
  const TemporaryFolder folder;
  std::string text = "#opt\n0 1\nHe 0 0 0\n";
  std::string fixed = text;
  for (int i = 0; i < 1100; ++i) {
    text +=
        "C\xC2\xA0"
        "1\n";
    fixed += "C 1\n";
  }
  const std::string path = folder.write("job.qin", text);
  EXPECT_EQ(run_in(folder.path(), {"lint", "-q", "--fix", "job.qin"}).code, 0);
  EXPECT_EQ(content_of(path), fixed);
}

TEST(LintFix, MendsFilesAndReportsWhatIsLeft) {
  const TemporaryFolder folder;
  const std::string path = folder.write("job.qin", "\xEF\xBB\xBF" + comma);
  const Outcome outcome = run_in(folder.path(), {"lint", "--fix", "--ignore=chemistry", "job.qin"});
  EXPECT_EQ(outcome, ended(0, "", "job.qin: note: 2 findings corrected\n" + one_clean));
  EXPECT_EQ(content_of(path), "#opt\n0 1\nH 0 0 0\nH 0 0 1.5\n");
  EXPECT_EQ(run_in(folder.path(), {"lint", "-q", "--fix", "--ignore=chemistry", "job.qin"}),
            ended(0, "", ""));
}

TEST(LintFix, LeavesAloneWhatIsNotSelected) {
  const TemporaryFolder folder;
  const std::string path = folder.write("job.qin", comma);
  run_in(folder.path(), {"lint", "--fix", "--ignore=QL104", "job.qin"});
  EXPECT_EQ(content_of(path), comma);
}

TEST(LintOfAProject, KeepsToItsChoices) {
  const TemporaryFolder folder;
  folder.write(".quill-inp.toml",
               "ignore = ['chemistry']\nfail-on = 'error'\nknown-commands = ['solvent']\n");
  folder.write("job.qin", "#opt\n#solvnt = water\n0 2\nHe 0 0 0\n");
  const std::string found =
      "job.qin:2:2: warning: the command 'solvnt' is not known; did you mean 'solvent'? [QL207]\n"
      "    #solvnt = water\n"
      "     ^^^^^^\n"
      "    to fix: write 'solvent', or add the name to known-commands in .quill-inp.toml\n";
  EXPECT_EQ(run_in(folder.path(), {"lint", "-q", "job.qin"}), ended(0, found, ""));
  EXPECT_EQ(run_in(folder.path(), {"lint", "-q", "--fail-on=warning", "job.qin"}),
            ended(1, found, ""));
}

TEST(LintOfAProject, RefusesAnUnknownKey) {
  const TemporaryFolder folder;
  folder.write(".quill-inp.toml", "\nfail_on = 'error'\n");
  folder.write("job.qin", comma);
  EXPECT_EQ(run_in(folder.path(), {"lint", "-q", "job.qin"}),
            ended(2, "",
                  "job.qin: error: " + folder.path(".quill-inp.toml") +
                      ":2: unknown key 'fail_on'; did you mean 'fail-on'?\n"));
}

TEST(LintOfSeveralFiles, KnowsTheNamesThatTwoOfThemUse) {
  const TemporaryFolder folder;
  const std::string rest = "\n0 1\nHe 0 0 0\n";
  folder.write("a.qin", "#sp\n#solvent=x" + rest);
  folder.write("b.qin", "#sp\n#Solvent=y" + rest);
  folder.write("c.qin", "#sp\n#solvnt=z" + rest);
  EXPECT_EQ(run_in(folder.path(), {"lint", "--format=github", "a.qin", "b.qin", "c.qin"}),
            ended(1,
                  "::warning file=c.qin,line=2,col=2,title=QL207::the command 'solvnt' is not "
                  "known; did you mean 'solvent'?\n",
                  "quill-inp: note: 3 files read, 1 with findings\n"));
}

TEST(LintOfReferences, LooksInTheFolderOfTheInput) {
  const TemporaryFolder folder;
  std::filesystem::create_directories(folder.path("jobs/structures"));
  folder.write("jobs/he.xyz", "1\n\nHe 0 0 0\n");
  folder.write("jobs/job.qin", "#sp\n0 1\nXYZ he.xyz\nXYZ no.xyz\nXYZ structures\nXYZ job.qin\n");
  EXPECT_EQ(
      run_in(folder.path(), {"lint", "-q", "--format=github", "jobs/job.qin"}).out,
      "::warning file=jobs/job.qin,line=4,col=5,title=QL402::the file 'no.xyz' does not exist\n"
      "::warning file=jobs/job.qin,line=5,col=5,title=QL403::the file 'structures' cannot be "
      "read: it is a folder\n"
      "::warning file=jobs/job.qin,line=6,col=5,title=QL404::the file 'job.qin' does not "
      "begin with a frame of the XYZ format\n");
}

TEST(Strict, RefusesATextWithAnError) {
  const TemporaryFolder folder;
  const std::string path = folder.write("job.qin", "#opt\n0 1\nHe 0 0 0\nC 0\n");
  const std::string message =
      "job.qin:5: error: refused by --strict: the atom number '0' is below 1 [QL303]\n";
  EXPECT_EQ(run_in(folder.path(), {"set", "--strict", "-i", "job.qin", "model=a"}),
            ended(2, "", message));
  EXPECT_EQ(content_of(path), "#opt\n0 1\nHe 0 0 0\nC 0\n");
  EXPECT_EQ(run_in(folder.path(), {"set", "-q", "-i", "job.qin", "model=a"}).code, 0);
  EXPECT_EQ(run_in(folder.path(), {"fmt", "--strict", "job.qin"}).code, 2);
  EXPECT_EQ(run_in(folder.path(), {"new", "-q", "--strict", "--task=opt", "--raw=#freq"}).code, 2);
  folder.write(".quill-inp.toml", "ignore = ['QL303']\n");
  EXPECT_EQ(run_in(folder.path(), {"fmt", "-q", "--strict", "job.qin"}).code, 0);
}

}  // namespace
}  // namespace kelp::input::quill::tool
