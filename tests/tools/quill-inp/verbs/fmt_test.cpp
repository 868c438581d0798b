#include <gtest/gtest.h>

#include <string>

#include "tools/quill-inp/support/call.hpp"
#include "tools/quill-inp/support/files.hpp"

namespace kelp::input::quill::tool {
namespace {

const std::string canonical_by_hand =
    "#Opt(maxiter=50, tight)\n"
    "#Model = m1\n"
    "\n"
    "0 1\n"
    "O        0.000000      0.000000      0.117176\n"
    "H        0.000000      0.756950     -0.468706\n"
    "H        0.000000     -0.756950     -0.468706\n";

Outcome usage_error(const std::string& message) {
  return ended(2, "",
               "quill-inp: error: " + message + "\nquill-inp: note: see 'quill-inp fmt --help'\n");
}

const std::string digits = "0 1\nHe 0 0 0.12345678\nHe 0 0 1.00000049\nHe 0 0 1\n";

/// Atoms with a digit too many, which may go, and of which the first twenty are told one by one.
Call digits_that_go(std::string_view name, int count, const std::string& rest) {
  std::string input = "0 1\n";
  std::string text = "0 1\n";
  std::string told =
      "<stdin>: note: " + std::to_string(count) + " numbers change, by up to 1e-07\n";
  for (int atom = 1; atom <= count; ++atom) {
    input += "He 0 0 0.5000001\n";
    text += "He       0.000000      0.000000      0.500000\n";
    if (atom > 20) continue;
    told += atom == 1 ? "<stdin>:2: warning: accepted loss: line 2 would be read differently: "
                      : "<stdin>: warning: accepted loss: ";
    told += "z of atom " + std::to_string(atom) + " is 0.5 instead of 0.5000001\n";
  }
  return {name, {"fmt", "--allow-loss", "--max-change=0", "-"}, ended(0, text, told + rest), input};
}

class Fmt : public testing::TestWithParam<Call> {};

const Call calls[] = {
    {"PrintsTheCanonicalText", {"fmt", "by_hand.qin"}, ended(0, canonical_by_hand, "")},
    {"PrintsCanonicalTextAsItIs", {"fmt", "water.qin"}, ended(0, water, "")},
    {"PrintsOneFileAfterTheOther",
     {"fmt", "water.qin", "by_hand.qin"},
     ended(0, water + canonical_by_hand, "")},
    {"ReadsStandardInput", {"fmt", "-"}, ended(0, "0 1\n", ""), "\n\n 0\t1"},
    {"PrintsNothingOfNothing", {"fmt", "-q", "-"}, ended(0, "", "")},
    {"QuotesWhereItMust",
     {"fmt", "-"},
     ended(0, "#a(b=\"c,d\", e=f)\n#g = ' h \"'\n\n0 1\n", ""),
     "#a(b='c,d',e='f')\n#g=' h \"'\n0 1\n"},
    {"ChecksAndFindsNothing", {"fmt", "--check", "water.qin"}, ended(0, "", "")},
    {"ChecksAndNamesTheFiles",
     {"fmt", "--check", "water.qin", "by_hand.qin"},
     ended(1, "by_hand.qin\n", "")},
    {"ChecksStandardInputByItsName",
     {"fmt", "--check", "--stdin-filename=a b.qin", "-"},
     ended(1, "a b.qin\n", ""),
     "0  1\n"},
    {"PrintsADifference",
     {"fmt", "--diff", "-"},
     ended(1, "--- <stdin>\n+++ <stdin>\n@@ -1,2 +1,3 @@\n-# opt\n+#opt\n+\n 0 1\n", ""),
     "# opt\n0 1\n"},
    {"PrintsNoDifference", {"fmt", "--diff", "water.qin"}, ended(0, "", "")},
    {"ChecksAndPrintsADifference",
     {"fmt", "--check", "--diff", "-"},
     ended(1, "<stdin>\n--- <stdin>\n+++ <stdin>\n@@ -1 +1 @@\n-0  1\n+0 1\n", ""),
     "0  1\n"},
    {"PrintsADifferenceInColour",
     {"fmt", "--diff", "--color=always", "-"},
     ended(1,
           "\x1B[31m--- <stdin>\x1B[m\n\x1B[32m+++ <stdin>\x1B[m\n\x1B[36m@@ -1 +1 @@\x1B[m\n"
           "\x1B[31m-0  1\x1B[m\n\x1B[32m+0 1\x1B[m\n",
           ""),
     "0  1\n"},
    {"ShowsTheBytesOfAColouredDifference",
     {"fmt", "--diff", "--color=always", "-"},
     ended(1,
           "\x1B[31m--- <stdin>\x1B[m\n\x1B[32m+++ <stdin>\x1B[m\n\x1B[36m@@ -1,2 +1,3 @@\x1B[m\n"
           "\x1B[31m-#a\\x1b  =b\x1B[m\n\x1B[32m+#a\\x1b = b\x1B[m\n\x1B[32m+\x1B[m\n 0 1\n",
           ""),
     "#a\x1B  =b\n0 1\n"},
    {"PrintsTheBytesOfAPlainDifference",
     {"fmt", "--diff", "-"},
     ended(1, "--- <stdin>\n+++ <stdin>\n@@ -1,2 +1,3 @@\n-#a\x1B  =b\n+#a\x1B = b\n+\n 0 1\n", ""),
     "#a\x1B  =b\n0 1\n"},
    {"NotesRoundedNumbers",
     {"fmt", "-"},
     ended(0,
           "0 1\nHe       0.000000      0.000000      0.123457\n"
           "He       0.000000      0.000000      1.000000\n"
           "He       0.000000      0.000000      1.000000\n",
           "<stdin>: note: 2 numbers change, by up to 4.9e-07\n"),
     digits},
    {"KeepsNotesToItselfWhenQuiet",
     {"fmt", "-q", "--check", "-"},
     ended(1, "<stdin>\n", ""),
     digits},

    {"RefusesLargeChangesOfNumbers",
     {"fmt", "-q", "--max-change", "4e-7", "-"},
     refused_at("<stdin>", 3, "would be read differently: z of atom 2 is 1 instead of 1.00000049"),
     digits},
    {"RefusesAnyChangeOfNumbers",
     {"fmt", "-q", "--max-change", "0", "-"},
     refused_at("<stdin>", 2,
                "would be read differently: z of atom 1 is 0.123457 instead of 0.12345678"),
     digits},
    {"AcceptsTheExactLimit",
     {"fmt", "-q", "--check", "--max-change=5e-7", "-"},
     ended(1, "<stdin>\n", ""),
     "0 1\nHe 0 0 0.1234564\n"},
    {"RefusesAScanCutToSixDigits",
     {"fmt", "-q", "-"},
     refused_at("<stdin>", 3,
                "would be read differently: the scan value of post-processing line 1 is 123.457 "
                "instead of 123.45678"),
     "XYZ a\nS 1 2 123.45678 10\n"},
    {"RefusesToDropALine",
     {"fmt", "-q", "-"},
     refused_at("<stdin>", 2, "would be left out: 'B 1 x'"),
     "XYZ a\n B 1 x \n"},
    {"RefusesToLoseTheBlanksBeforeRawText",
     {"fmt", "-q", "-"},
     refused_at("<stdin>", 3, "would lose the blanks at its beginning: '\\tdo it'"),
     "XYZ a\nif so\n\tdo it\n"},
    {"RefusesToLoseABlankLineBetweenRawText",
     {"fmt", "-q", "-"},
     ended(2, "",
           "<stdin>:3: error: refused: line 3, which is blank and between lines of raw text, would "
           "be left out; use --allow-loss to write it anyway\n"),
     "XYZ a\nif so\n\ndo it\n"},
    {"RefusesToLoseBlankLinesBetweenRawText",
     {"fmt", "-q", "-"},
     ended(
         2, "",
         "<stdin>:4: error: refused: lines 4 to 5, which are blank and between lines of raw text, "
         "would be left out; use --allow-loss to write it anyway\n"),
     "XYZ a\n\nif so\n\n \ndo it\n"},
    {"LaysOutBlankLinesBetweenOtherLines",
     {"fmt", "-"},
     ended(0, "#a\n\nXYZ a\n\nif so\nC 1\ndo it\n", ""),
     "\n#a\nXYZ a\n\n\nif so\n\n  C 1\n\ndo it \n\n"},
    {"LosesBlanksIfItMay",
     {"fmt", "--allow-loss", "-"},
     ended(0, "XYZ a\n\nif so\ndo it\n",
           "<stdin>:3: warning: accepted loss: line 3, which is blank and between lines of raw "
           "text, would be "
           "left out\n"
           "<stdin>:4: warning: accepted loss: line 4 would lose the blanks at its beginning: '  "
           "do it'\n"),
     "XYZ a\nif so\n\n  do it\n"},
    {"RefusesToDropAReferenceWithoutPath",
     {"fmt", "-q", "-"},
     refused_at("<stdin>", 2, "would be left out: 'XYZ'"),
     "XYZ a\nXYZ\n"},
    {"RefusesToDropAParameterWithoutName",
     {"fmt", "-q", "-"},
     refused_at("<stdin>", 1,
                "says more than its command, and the rest would be lost: '#a(b, =5)'"),
     "#a(b, =5)\n0 1\n"},
    {"LosesNothingWithEmptyPlacesInAList",
     {"fmt", "-"},
     ended(0, "#a(b, c=d)\n\n0 1\n", ""),
     "#a(,b,, c = 'd' ,)\n0 1\n"},
    {"RefusesToDropTrailingText",
     {"fmt", "-q", "-"},
     refused_at("<stdin>", 1, "says more than its command, and the rest would be lost: '#a(b) c'"),
     "#a(b) c\n0 1\n"},
    {"QuotesQuotes",
     {"fmt", "-"},
     ended(0, "#a = \"\"a'b\"\"\n\n0 1\n", ""),
     "#a = '\"a'b\"'\n0 1\n"},
    {"TellsWhatALineIsReadAsWithoutTheOneBeforeIt",
     {"fmt", "-q", "-"},
     refused_at("<stdin>", 2, "would be left out: 'B 1 x'"),
     "#a\nB 1 x\n1 2\n"},
    {"TellsWhatBecomesOfALineThatComesFirst",
     {"fmt", "--allow-loss", "-"},
     ended(0, "#a\n\n1 2\n",
           "<stdin>:2: warning: ignored unrecognized QUILL post-processing line\n"
           "<stdin>: warning: No QUILL coordinate section found\n"
           "<stdin>:2: warning: accepted loss: line 2 would be left out: 'B 1 x'\n"
           "<stdin>:3: warning: accepted loss: line 3 would be read as charge and multiplicity, "
           "not as raw "
           "text; put another post-processing line before it to avoid that\n"
           "<stdin>: warning: accepted loss: the charge and multiplicity line is present instead "
           "of absent\n"
           "<stdin>: warning: accepted loss: the charge is 1 instead of 0\n"
           "<stdin>: warning: accepted loss: the multiplicity is 2 instead of 1\n"
           "<stdin>: warning: accepted loss: the number of post-processing lines is 0 instead of "
           "1\n"),
     "#a\nB 1 x\n1 2\n"},
    {"DropsWhatItMay",
     {"fmt", "--allow-loss", "-"},
     ended(0, "#a(b)\n\n0 1\n",
           "<stdin>:1: warning: ignored trailing text after QUILL header command\n"
           "<stdin>:3: warning: ignored unrecognized QUILL post-processing line\n"
           "<stdin>:1: warning: accepted loss: line 1 says more than its command, and the rest "
           "would be lost: "
           "'#a(b) c'\n"
           "<stdin>:3: warning: accepted loss: line 3 would be left out: 'B 1 x'\n"),
     "#a(b) c\n0 1\nB 1 x\n"},
    digits_that_go("TellsTwentyLosses", 20, ""),
    digits_that_go("CountsTheLossesAfterTwenty", 21,
                   "<stdin>: warning: accepted loss: 1 more difference of this kind\n"),
    {"GoesOnWithTheOtherFiles",
     {"fmt", "-q", "two_opts.qin", "none.qin", "water.qin"},
     ended(2, water,
           "two_opts.qin:2: error: refused: line 2 says more than its command, and the rest would "
           "be lost: "
           "'#Opt(maxiter=70) and so on'; use --allow-loss to write it anyway\n"
           "none.qin: error: cannot be opened: No such file or directory\n")},

    {"DoesNotWriteWhatItChecks",
     {"fmt", "-i", "--check", "water.qin"},
     usage_error("--check and --diff write no file and cannot be used with --in-place")},
    {"NeedsAFile", {"fmt"}, usage_error("FILE is required")},
};

TEST_P(Fmt, LaysInputsOut) { expect_outcome(GetParam()); }

INSTANTIATE_TEST_SUITE_P(Table, Fmt, testing::ValuesIn(calls),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace kelp::input::quill::tool
