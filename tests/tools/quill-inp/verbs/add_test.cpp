#include <gtest/gtest.h>

#include <string>

#include "support/temporary_folder.hpp"
#include "tools/quill-inp/support/call.hpp"
#include "tools/quill-inp/support/files.hpp"

namespace kelp::input::quill::tool {
namespace {

Outcome refused(const std::string& message) {
  return ended(2, "",
               "water.qin: error: refused: " + message + "; use --allow-loss to write it anyway\n");
}

Outcome usage_error(const std::string& message) {
  return ended(2, "",
               "quill-inp: error: " + message + "\nquill-inp: note: see 'quill-inp add --help'\n");
}

class Add : public testing::TestWithParam<Call> {};

const std::string path = "XYZ a\n";

const Call calls[] = {
    {"Bond", {"add", "water.qin", "--bond", "1,2"}, ended(0, water + std::string("\nB 1 2\n"), "")},
    {"EveryKindInOrder",
     {"add", "-", "--raw", "first line", "--angle", "1,2,3", "--dihedral=1,2,3,4", "--bond", "1,2",
      "--atom", "7", "--scan", "1,2:1.5:10", "--post", "my file", "--bond", "3,4", "--raw", "last"},
     ended(0,
           "XYZ a\n\nfirst line\nA 1 2 3\nD 1 2 3 4\nB 1 2\nC 7\nS 1 2 1.5 10\nPOST my file\nB 3 "
           "4\nlast\n",
           ""),
     path},
    {"AfterLinesThatAreThere",
     {"add", "-", "--bond", "3,4"},
     ended(0, "XYZ a\n\nB 1 2\nB 3 4\n", ""),
     "XYZ a\n\nB 1 2\n"},
    {"TheMissingLineEndStaysMissing",
     {"add", "-", "--bond", "3,4"},
     ended(0, "XYZ a\r\nB 1 2\r\nB 3 4", ""),
     "XYZ a\r\nB 1 2"},
    {"TextThatLooksLikeAListOrAnOption",
     {"add", "-", "--raw", "[x]", "--raw=--bond", "--raw=++"},
     ended(0, "XYZ a\n\n[x]\n--bond\n++\n", ""),
     path},
    {"AngleAfterAnotherLine",
     {"add", "water.qin", "--bond", "1,2", "--angle", "1,2,3"},
     ended(0, water + std::string("\nB 1 2\nA 1 2 3\n"), "")},
    {"ScanInSixDigits",
     {"add", "-", "--scan", "1,2:123.456:10"},
     ended(0, "XYZ a\n\nS 1 2 123.456 10\n", ""),
     path},

    {"AngleThatWouldBeAnAtom",
     {"add", "water.qin", "--angle", "1,2,3"},
     refused_at("water.qin", 9,
                "would be read as an atom of element A, not as an angle constraint; put another "
                "post-processing line before it to avoid that")},
    {"RawTextThatWouldBeAConstraint",
     {"add", "water.qin", "--raw", "B 1 2"},
     refused_at("water.qin", 9,
                "would be read differently: post-processing line 1 is a bond constraint instead "
                "of raw text")},
    {"RawTextThatWouldBeDropped",
     {"add", "water.qin", "--raw", "B 1 x"},
     refused_at("water.qin", 9, "would be dropped with a warning, not read as raw text")},
    {"RawTextWithOuterBlanks",
     {"add", "water.qin", "--raw", " x "},
     refused_at("water.qin", 9,
                "would be read differently: the text of post-processing line 1 is 'x' instead of "
                "' x '")},
    {"NoText", {"add", "water.qin", "--raw="}, refused("no line would be read as raw text ('')")},
    {"TextOfTwoLines",
     {"add", "water.qin", "--raw", "a\nb"},
     refused_at("water.qin", 9,
                "would be read differently: the text of post-processing line 1 is 'a' instead of "
                "'a\\nb'")},
    {"NoPath",
     {"add", "water.qin", "--post", ""},
     refused_at("water.qin", 9,
                "would be read differently: post-processing line 1 is raw text instead of a post "
                "file")},
    {"ScanInTooManyDigits",
     {"add", "-q", "water.qin", "--scan", "1,2:1.23456789:10"},
     refused_at("water.qin", 9,
                "would be read differently: the scan value of post-processing line 1 is 1.23457 "
                "instead of 1.23456789")},
    {"ScanInTooManyDigitsForNoChangeAtAll",
     {"add", "-q", "--max-change", "0", "water.qin", "--scan", "1,2:0.00001234567:10"},
     refused_at("water.qin", 9,
                "would be read differently: the scan value of post-processing line 1 is "
                "1.23457e-05 instead of 1.234567e-05")},
    {"ScanInTooManyDigitsForASmallChange",
     {"add", "-", "--scan", "1,2:0.00001234567:10"},
     ended(0, "XYZ a\n\nS 1 2 1.23457e-05 10\n",
           "<stdin>: note: 1 number changes, by up to 3e-11\n"),
     path},
    {"LossThatIsAllowed",
     {"add", "--allow-loss", "-", "--raw", " B 1 2"},
     ended(0, "XYZ a\n\n B 1 2\n",
           "<stdin>:3: warning: accepted loss: line 3 would be read differently: post-processing "
           "line 1 is a "
           "bond constraint instead of raw text\n"
           "<stdin>: warning: accepted loss: the list of atom numbers of post-processing line 1 is "
           "1 2 "
           "instead of "
           "absent\n"),
     path},

    {"AnAtomThatIsNotThere",
     {"add", "water.qin", "--bond", "1,4"},
     refused("'B 1 4' names atom 4, but there are only 3 atoms")},
    {"TheLastAtom",
     {"add", "water.qin", "--bond", "1,3"},
     ended(0, water + std::string("\nB 1 3\n"), "")},
    {"AnAtomBesideTheOnlyOne",
     {"add", "-", "--bond", "5,9"},
     ended(2, "",
           "<stdin>: error: refused: 'B 5 9' names atom 5, but there is only 1 atom; use "
           "--allow-loss to write it anyway\n"),
     "0 1\nHe 0 0 0\n"},
    {"TheSameAtomTwice",
     {"add", "water.qin", "--bond", "1,1"},
     refused("'B 1 1' names atom 1 more than once")},
    {"TheSameAtomAtBothEnds",
     {"add", "water.qin", "--raw", "x", "--angle", "1,2,1"},
     refused("'A 1 2 1' names atom 1 more than once")},
    {"AtomZero",
     {"add", "water.qin", "--bond", "0,1"},
     refused("'B 0 1' names atom 0, but atom numbers count from 1")},
    {"ANegativeAtom",
     {"add", "water.qin", "--atom=-1"},
     refused("'C -1' names atom -1, but atom numbers count from 1")},
    {"AScanOfAnAtomThatIsNotThere",
     {"add", "water.qin", "--scan", "1,4:1.5:10"},
     refused("'S 1 4 1.5 10' names atom 4, but there are only 3 atoms")},
    {"AScanToNoNumber",
     {"add", "water.qin", "--scan", "1,2:nan:10"},
     refused("'S 1 2 nan 10' has a value that is infinite or not a number")},
    {"EveryDoubtIsToldWhenItIsAllowed",
     {"add", "--allow-loss", "water.qin", "--bond", "0,0", "--bond", "4,2"},
     ended(0, water + std::string("\nB 0 0\nB 4 2\n"),
           "water.qin: warning: 'B 0 0' names atom 0, but atom numbers count from 1\n"
           "water.qin: warning: 'B 0 0' names atom 0 more than once\n"
           "water.qin: warning: 'B 4 2' names atom 4, but there are only 3 atoms\n")},
    {"LinesThatWereThereAreNotJudged",
     {"add", "-", "--atom", "1"},
     ended(0, "0 1\nHe 0 0 0\nB 1 9\nC 1\n", ""),
     "0 1\nHe 0 0 0\nB 1 9\n"},
    {"AtomsInAFileThatIsThere",
     {"add", "-", "--bond", "3,4"},
     ended(2, "",
           "<stdin>: error: refused: 'B 3 4' names atom 4, but there are only 3 atoms; use "
           "--allow-loss to write it anyway\n"),
     "XYZ water.xyz\n"},
    {"AtomsInATrajectoryThatIsThere",
     {"add", "-", "--bond", "2,3"},
     ended(2, "",
           "<stdin>: error: refused: 'B 2 3' names atom 3, but there are only 2 atoms; use "
           "--allow-loss to write it anyway\n"),
     "XYZTRAJ odd.xyz\n"},
    {"AtomsInTheLargestOfSeveralFiles",
     {"add", "-", "--bond", "2,3"},
     ended(0, "XYZ odd.xyz\nXYZ water.xyz\n\nB 2 3\n", ""),
     "XYZ odd.xyz\nXYZ water.xyz\n"},
    {"AtomsInAFileThatIsMissing",
     {"add", "-", "--bond", "3,400"},
     ended(0, "XYZ water.xyz\nXYZ none.xyz\n\nB 3 400\n", ""),
     "XYZ water.xyz\nXYZ none.xyz\n"},
    {"AtomsInAFileOfAnotherForm",
     {"add", "-", "--bond", "3,400"},
     ended(0, "XYZ water.qin\n\nB 3 400\n", ""),
     "XYZ water.qin\n"},
    {"AtomsInAFolder",
     {"add", "-", "--bond", "3,400"},
     ended(0, "XYZ .\n\nB 3 400\n", ""),
     "XYZ .\n"},
    {"NoCoordinates",
     {"add", "-q", "bare.qin", "--bond", "3,400"},
     ended(0, "#sp\n\nB 3 400\n", "")},

    {"NothingToAdd", {"add", "water.qin"}, usage_error("nothing to add")},
    {"BadBond",
     {"add", "water.qin", "--bond", "1"},
     usage_error("--bond takes two atom numbers, such as '1,2', not '1'")},
    {"BondWithoutValue", {"add", "water.qin", "--bond"}, usage_error("--bond needs a value")},
    {"UnknownOption",
     {"add", "water.qin", "--bnd", "1,2"},
     usage_error("unknown option '--bnd'; did you mean '--bond'?")},
    {"ASecondFile",
     {"add", "-q", "bare.qin", "--bond", "1,2", "bare.qin"},
     ended(0, "#sp\n\nB 1 2\n#sp\n\nB 1 2\n", "")},
};

TEST_P(Add, AppendsLines) { expect_outcome(GetParam()); }

INSTANTIATE_TEST_SUITE_P(Table, Add, testing::ValuesIn(calls),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(ReferencedAtoms, AreCountedRelativeToTheInput) {
  const TemporaryFolder folder;
  run_shell(folder.path(), "mkdir job; printf '1\\n\\nHe 0 0 0\\n' > job/he.xyz");
  run_shell(folder.path(), "echo XYZ he.xyz > job/a.qin; echo XYZ $PWD/job/he.xyz > absolute.qin");
  for (const char* input : {"job/a.qin", "absolute.qin"}) {
    EXPECT_EQ(run_in(folder.path(), {"add", "-i", input, "--atom", "2"}),
              ended(2, "",
                    std::string(input) +
                        ": error: refused: 'C 2' names atom 2, but there is only 1 atom; use "
                        "--allow-loss to write it anyway\n"));
  }
}

}  // namespace
}  // namespace kelp::input::quill::tool
