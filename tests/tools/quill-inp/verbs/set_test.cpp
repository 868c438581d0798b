#include <gtest/gtest.h>

#include <string>

#include "tools/quill-inp/support/call.hpp"
#include "tools/quill-inp/support/files.hpp"

namespace kelp::input::quill::tool {
namespace {

const std::string atoms =
    "O        0.000000      0.000000      0.117176\n"
    "H        0.000000      0.756950     -0.468706\n"
    "H        0.000000     -0.756950     -0.468706\n";

const std::string behind_header = "\n0 1\n" + atoms;

const std::string hint = "quill-inp: note: see 'quill-inp set --help'\n";

/// Water with other header lines.
Outcome with_header(const std::string& header) { return ended(0, header + behind_header, ""); }

Outcome usage_error(const std::string& message) {
  return ended(2, "", "quill-inp: error: " + message + "\n" + hint);
}

Outcome refused(const std::string& message) {
  return ended(2, "",
               "water.qin: error: refused: " + message + "; use --allow-loss to write it anyway\n");
}

std::string not_a_path(const std::string& option) {
  return option +
         " takes a path, but 'model=m2' looks like a setting; put settings before the options or "
         "after '--', or write './model=m2' for a path";
}

Outcome nameless(const std::string& key) {
  return usage_error("bad key '" + key +
                     "': the name is missing; a key is COMMAND, COMMAND.PARAMETER, COMMAND[N] or "
                     "COMMAND[N].PARAMETER, where N counts from 0, or begins with '@', such as "
                     "@charge, @bonds, @bond[N] or @commands[N]");
}

class Set : public testing::TestWithParam<Call> {};

const Call calls[] = {
    {"ParameterThatIsThere",
     {"set", "water.qin", "opt.maxiter=100"},
     with_header("#opt(maxiter=100, tight)\n#model = m1\n")},
    {"ParameterThatIsNew",
     {"set", "water.qin", "opt.step=0.1"},
     with_header("#opt(maxiter=50, tight, step=0.1)\n#model = m1\n")},
    {"ParameterWithoutValue",
     {"set", "water.qin", "--flag", "opt.loose"},
     with_header("#opt(maxiter=50, tight, loose)\n#model = m1\n")},
    {"ParameterWithoutValueThatIsThere",
     {"set", "water.qin", "--flag", "opt.TIGHT"},
     with_header("#opt(maxiter=50, tight)\n#model = m1\n")},
    {"ParameterOfACommandThatIsNew",
     {"set", "water.qin", "freq.t=298"},
     with_header("#opt(maxiter=50, tight)\n#model = m1\n#freq(t=298)\n")},
    {"ParameterWithoutValueOfACommandThatIsNew",
     {"set", "water.qin", "--flag=freq.raman"},
     with_header("#opt(maxiter=50, tight)\n#model = m1\n#freq(raman)\n")},
    {"EmptyParameter",
     {"set", "water.qin", "opt.maxiter="},
     with_header("#opt(maxiter=, tight)\n#model = m1\n")},
    {"Assignment",
     {"set", "water.qin", "model=m2"},
     with_header("#opt(maxiter=50, tight)\n#model = m2\n")},
    {"AssignmentThatIsNew",
     {"set", "water.qin", "device=gpu"},
     with_header("#opt(maxiter=50, tight)\n#model = m1\n#device = gpu\n")},
    {"Flag",
     {"set", "water.qin", "--flag", "freq"},
     with_header("#opt(maxiter=50, tight)\n#model = m1\n#freq\n")},
    {"FlagsInTheOrderOfTheWords",
     {"set", "water.qin", "--flag", "a", "a=1", "b.c=1", "--allow-loss", "-q", "--flag", "b.c"},
     with_header("#opt(maxiter=50, tight)\n#model = m1\n#a = 1\n#b(c)\n")},
    {"FlagWhoseNameHasAnEqualsSign",
     {"set", "water.qin", "--flag", R"(opt.a\=b)", "--allow-loss", "-q"},
     with_header("#opt(maxiter=50, tight, a=b)\n#model = m1\n")},
    {"FlagThatLooksLikeAList", {"set", "water.qin", "--flag", "[a]"}, nameless("[a]")},
    {"SeveralAtOnce",
     {"set", "water.qin", "model=m2", "opt.a=1", "--flag", "opt.b", "opt.a=2", "@charge=-1"},
     ended(0, "#opt(maxiter=50, tight, a=2, b)\n#model = m2\n\n-1 1\n" + atoms, "")},
    {"Multiplicity",
     {"set", "water.qin", "@multiplicity=3"},
     ended(0, "#opt(maxiter=50, tight)\n#model = m1\n\n0 3\n" + atoms, "")},
    {"NothingToChange", {"set", "water.qin", "model=m1", "opt.maxiter=50"}, ended(0, water, "")},
    {"ValueWithAComma",
     {"set", "water.qin", "opt.basis=a,b"},
     with_header("#opt(maxiter=50, tight, basis=\"a,b\")\n#model = m1\n")},
    {"ValueWithOuterBlanks",
     {"set", "water.qin", "model= m 1 "},
     with_header("#opt(maxiter=50, tight)\n#model = \" m 1 \"\n")},
    {"ValueWithQuotesAroundIt",
     {"set", "water.qin", "model=\"m1\""},
     with_header("#opt(maxiter=50, tight)\n#model = '\"m1\"'\n")},
    {"ValueWithBytesOfItsOwn",
     {"set", "water.qin", "model=\xFF\x1B"},
     with_header("#opt(maxiter=50, tight)\n#model = \xFF\x1B\n")},
    {"OtherLinesStayAsTheyAre",
     {"set", "by_hand.qin", "opt.maxiter=60"},
     ended(0,
           "#Opt(maxiter=60, tight)\r\n#Model=\"m1\"\r\n  0   1\r\n\r\no 0 0 0.117176\r\n"
           "h 0  0.75695 -0.468706\r\nh 0 -0.75695 -0.468706",
           "")},
    {"NewLinesEndAsTheOthersDo",
     {"set", "by_hand.qin", "--flag", "freq"},
     ended(0,
           "# Opt ( maxiter = 50 , tight )\r\n#Model=\"m1\"\r\n#freq\r\n  0   1\r\n\r\n"
           "o 0 0 0.117176\r\nh 0  0.75695 -0.468706\r\nh 0 -0.75695 -0.468706",
           "")},
    {"SecondCommandOfItsName",
     {"set", "--allow-loss", "-q", "two_opts.qin", "opt[1].maxiter=80"},
     ended(0, "#opt(maxiter=50)\n#Opt(maxiter=80)\n\nXYZ a b.xyz\nXYZ c.xyz\nB 1 x\n", "")},
    {"XyzFiles",
     {"set", "water.qin", "--xyz", "a.xyz", "b c.xyz"},
     ended(0, "#opt(maxiter=50, tight)\n#model = m1\n\n0 1\nXYZ a.xyz\nXYZ b c.xyz\n", "")},
    {"XyzFilesAndValues",
     {"set", "water.qin", "model=m2", "--xyz", "a.xyz"},
     ended(0, "#opt(maxiter=50, tight)\n#model = m2\n\n0 1\nXYZ a.xyz\n", "")},
    {"ValuesAfterTheXyzFiles",
     {"set", "water.qin", "--xyz", "a.xyz", "--", "model=m2"},
     ended(0, "#opt(maxiter=50, tight)\n#model = m2\n\n0 1\nXYZ a.xyz\n", "")},
    {"PathsWithEqualsSigns",
     {"set", "water.qin", "--xyz", "./model=m2", "a/b=c"},
     ended(0, "#opt(maxiter=50, tight)\n#model = m1\n\n0 1\nXYZ ./model=m2\nXYZ a/b=c\n", "")},
    {"Trajectory",
     {"set", "water.qin", "--trajectory", "t.xyz"},
     ended(0, "#opt(maxiter=50, tight)\n#model = m1\n\n0 1\nXYZTRAJ t.xyz\n", "")},
    {"Atoms",
     {"set", "-q", "two_opts.qin", "--atoms", "water.xyz"},
     ended(0, "#opt(maxiter=50)\n#Opt(maxiter=70) and so on\n\n" + atoms + "B 1 x\n", "")},
    {"AtomsOfUnknownElementsWithMoreDigits",
     {"set", "water.qin", "--atoms", "odd.xyz"},
     ended(0,
           "#opt(maxiter=50, tight)\n#model = m1\n\n0 1\n"
           "He       0.000000      0.000000      0.123457\n"
           "D        0.000000      0.000000      1.000000\n",
           "odd.xyz:4: warning: unknown element symbol 'D'\n"
           "water.qin: note: 1 number changes, by up to 2.2e-07\n")},
    {"AtomsFromStandardInput",
     {"set", "-q", "water.qin", "--atoms", "-"},
     ended(0,
           "#opt(maxiter=50, tight)\n#model = m1\n\n0 1\n"
           "He       1.000000      2.000000      3.000000\n",
           ""),
     "1\n\nhe 1 2 3\n"},
    {"StandardInput", {"set", "-", "model=m2"}, ended(0, "#model = m2\n0 1", ""), "#model=m1\n0 1"},
    {"Difference",
     {"set", "--diff", "water.qin", "model=m2"},
     ended(1,
           "--- water.qin\n+++ water.qin\n@@ -1,5 +1,5 @@\n #opt(maxiter=50, tight)\n-#model = m1\n"
           "+#model = m2\n \n 0 1\n O        0.000000      0.000000      0.117176\n",
           "")},
    {"NoDifference", {"set", "--diff", "water.qin", "model=m1"}, ended(0, "", "")},
    {"AngleBracketsInAName",
     {"set", "water.qin", R"(a\.b\[0\]=1)"},
     with_header("#opt(maxiter=50, tight)\n#model = m1\n#a.b[0] = 1\n")},

    {"NewNameThatLooksLikeOneThatIsThere",
     {"set", "water.qin", "modle=m2", "opt.maxitr=1"},
     ended(0, "#opt(maxiter=50, tight, maxitr=1)\n#model = m1\n#modle = m2\n" + behind_header,
           "water.qin: note: 'modle' is new; did you mean 'model'?\n"
           "water.qin: note: 'opt.maxitr' is new; did you mean 'maxiter'?\n")},
    {"ParameterWithoutNameWouldGo",
     {"set", "-", "a.b=1"},
     ended(2, "",
           "<stdin>:1: error: refused: line 1 says more than its command, and the rest would be "
           "lost: "
           "'#a(=5, b)'; use --allow-loss to write it anyway\n"),
     "#a(=5, b)\n0 1\n"},
    {"ParameterWithoutNameOnALineThatStays",
     {"set", "-", "c=1"},
     ended(0, "#a(=5, b)\n#c = 1\n0 1\n", ""),
     "#a(=5, b)\n0 1\n"},

    {"NoSuchOccurrence",
     {"set", "water.qin", "opt[1].maxiter=1"},
     ended(1, "",
           "water.qin: note: no match for 'opt[1].maxiter': there is only 1 command "
           "'opt', and [N] counts from 0\n")},
    {"OneOfTwoWithoutMatchSetsNothing",
     {"set", "-q", "water.qin", "model=m2", "freq[1].a=1"},
     ended(1, "", "")},

    {"ValueThatCannotBeSpelled",
     {"set", "water.qin", "opt.maxiter=x\"y'z,"},
     refused(
         "the value 'x\"y'z,' of parameter 'maxiter' cannot be written: without quotes, in double "
         "quotes and in single quotes it would be read differently with another parameter "
         "after it")},
    {"ParametersWouldGo",
     {"set", "water.qin", "opt=5"},
     refused("the command 'opt' would lose its parameters")},
    {"ParametersWouldGoForAFlag",
     {"set", "water.qin", "--flag", "opt"},
     refused("the command 'opt' would lose its parameters")},
    {"AValueWouldGo",
     {"set", "water.qin", "--flag", "model"},
     refused("the command 'model' would lose its value 'm1'")},
    {"AValueWouldGoForAParameter",
     {"set", "water.qin", "model.a=1"},
     refused("the command 'model' would lose its value 'm1'")},
    {"AParametersValueWouldGo",
     {"set", "water.qin", "--flag", "opt.maxiter"},
     refused("the parameter 'maxiter' would lose its value '50'")},
    {"ParametersMayGo",
     {"set", "--allow-loss", "water.qin", "opt=5"},
     ended(0, "#opt = 5\n#model = m1\n" + behind_header,
           "water.qin: warning: accepted loss: the command 'opt' would lose its parameters\n")},
    {"TrailingTextWouldGo",
     {"set", "-q", "two_opts.qin", "opt[1].maxiter=80"},
     ended(2, "",
           "two_opts.qin:2: error: refused: line 2 says more than its command, and the rest would "
           "be lost: "
           "'#Opt(maxiter=70) and so on'; use --allow-loss to write it anyway\n")},
    {"DigitsWouldGo",
     {"set", "-q", "--max-change=1e-7", "water.qin", "--atoms", "odd.xyz"},
     ended(2, "",
           "water.qin:5: error: refused: line 5 would be read differently: z of atom 1 is "
           "0.123457 instead of 0.12345678; use --allow-loss to write it anyway\n")},
    {"LineBreakInAValue",
     {"set", "water.qin", "model=a\nb"},
     refused("the value 'a\\nb' contains a line break, but a header command is one line")},
    {"LineBreakInAPath",
     {"set", "water.qin", "--trajectory", "a\nb"},
     refused_at("water.qin", 5,
                "would be read differently: the path of trajectory reference 1 is 'a' instead of "
                "'a\\nb'")},

    {"FlagWithAValue",
     {"set", "water.qin", "--flag", "opt.maxiter=5"},
     usage_error("--flag takes a KEY without a value, not 'opt.maxiter=5'")},
    {"FlagWithoutKey", {"set", "water.qin", "--flag"}, usage_error("--flag needs a value")},
    {"AForgottenEqualsSign",
     {"set", "-i", "water.qin", "opt.maxiter", "100"},
     usage_error("expected KEY=VALUE or a file, not 'opt.maxiter'; use --flag KEY for a setting "
                 "without a value")},
    {"AForgottenEqualsSignAfterASetting",
     {"set", "water.qin", "model=m2", "100"},
     usage_error(
         "expected KEY=VALUE or a file, not '100'; use --flag KEY for a setting without a value")},
    {"ASecondFile",
     {"set", "-q", "bare.qin", "./water.qin", "model=m2"},
     ended(0, "#sp\n#model = m2\n" + changed_water(), "")},
    {"ASecondFileThatIsNotThere",
     {"set", "-i", "water.qin", "none.qin", "model=m2"},
     usage_error("expected KEY=VALUE or a file, not 'none.qin'; use --flag KEY for a setting "
                 "without a value")},
    {"NoFile", {"set"}, usage_error("FILE is required")},
    {"AListAndNoSetting", {"set", "--files-from=-"}, usage_error("nothing to set")},
    {"AFlagBetweenFiles",
     {"set", "-q", "bare.qin", "--flag", "freq", "bare.qin"},
     ended(0, "#sp\n#freq\n#sp\n#freq\n", "")},
    {"AnEmptyWord",
     {"set", "water.qin", ""},
     usage_error(
         "expected KEY=VALUE or a file, not ''; use --flag KEY for a setting without a value")},
    {"ASettingAfterPaths",
     {"set", "-i", "water.qin", "--xyz", "a.xyz", "model=m2"},
     usage_error(not_a_path("--xyz"))},
    {"ASettingAttachedAsAPath",
     {"set", "water.qin", "--xyz=model=m2"},
     usage_error(not_a_path("--xyz"))},
    {"ASettingAsATrajectory",
     {"set", "water.qin", "--trajectory", "model=m2"},
     usage_error(not_a_path("--trajectory"))},
    {"ASettingAttachedAsATrajectory",
     {"set", "water.qin", "--trajectory=model=m2"},
     usage_error(not_a_path("--trajectory"))},
    {"ASettingWithASlashInItsValueAfterPaths",
     {"set", "water.qin", "--xyz", "a.xyz", "model=a/b"},
     usage_error("--xyz takes a path, but 'model=a/b' looks like a setting; put settings before "
                 "the options or after '--', or write './model=a/b' for a path")},
    {"NamelessCommand", {"set", "water.qin", "#=x"}, nameless("#")},
    {"NamelessCommandOfHashes", {"set", "water.qin", "##=x"}, nameless("##")},
    {"ParameterOfANamelessCommand", {"set", "water.qin", "#.a=x"}, nameless("#.a")},
    {"NamelessFlag", {"set", "water.qin", "--flag", "#"}, nameless("#")},
    {"CheckWithoutADifference",
     {"set", "--check", "water.qin", "model=m2"},
     usage_error("unknown option '--check'")},
    {"NothingToSet", {"set", "water.qin"}, usage_error("nothing to set")},
    {"TwoGeometries",
     {"set", "water.qin", "--xyz", "a", "--trajectory", "b"},
     usage_error("only one of --atoms, --xyz and --trajectory can be given")},
    {"ChargeThatIsNotANumber",
     {"set", "water.qin", "@charge=x"},
     usage_error("@charge takes an integer, not 'x'")},
    {"ChargeWithoutValue",
     {"set", "water.qin", "--flag", "@charge"},
     usage_error("'@charge' cannot be set without a value")},
    {"GeometryByValue",
     {"set", "water.qin", "@geometry=none"},
     usage_error("'@geometry' cannot be set to a value; use --atoms, --xyz or --trajectory")},
    {"WholeCommandByNumber",
     {"set", "-", "--allow-loss", "opt[1]=5", "--flag", "freq[0]", "model[1]=c"},
     ended(0, "#opt(x=1)\n#Opt = 5\n#freq\n#model=a\n#model = c\n0 1\n",
           "<stdin>: warning: accepted loss: the command 'Opt' would lose its parameters\n"
           "<stdin>: warning: accepted loss: the command 'freq' would lose its value '3'\n"),
     "#opt(x=1)\n#Opt(y)\n#freq=3\n#model=a\n#model=b\n0 1\n"},
    {"BareParameterByNumber",
     {"set", "-", "--flag", "opt[1].tight", "--flag", "opt[1].y"},
     ended(0, "#opt(x=1)\n#Opt(y, tight)\n0 1\n", ""),
     "#opt(x=1)\n#Opt(y)\n0 1\n"},
    {"ATaskInPlaceOfAnother",
     {"set", "-", "--replace-task", "SP=opt", "opt.maxiter=50", "--replace-task=freq[1]=ts"},
     ended(0, "#opt(maxiter=50)\n#freq\n#ts(a=1)\n0 1\n", ""),
     "#sp\n#freq\n#freq(a=1)\n0 1\n"},
    {"ATaskThatIsNotThere",
     {"set", "water.qin", "--replace-task", "sp=freq"},
     ended(1, "", "water.qin: note: no match for 'sp': no command 'sp'\n")},
    {"ATaskInPlaceOfNothing",
     {"set", "water.qin", "--replace-task", "sp"},
     usage_error("--replace-task takes two names of tasks, such as 'sp=opt', not 'sp'")},
    {"ATaskInPlaceOfACommandThatIsNone",
     {"set", "water.qin", "--replace-task", "model=opt"},
     usage_error("--replace-task takes two names of tasks, such as 'sp=opt', not 'model=opt'")},
    {"ATaskInPlaceOfACommandByItsPosition",
     {"set", "-", "--replace-task", "@commands[1]=opt"},
     ended(0, "#model=a\n#opt(x=1)\n0 1\n", ""),
     "#model=a\n#sp(x=1)\n0 1\n"},
    {"ATaskInPlaceOfAParameter",
     {"set", "water.qin", "--replace-task", "opt.tight=loose"},
     usage_error(
         "--replace-task takes two names of tasks, such as 'sp=opt', not 'opt.tight=loose'")},
    {"NothingIsCreatedIfOnlyExistingIsSet",
     {"set", "--existing", "water.qin", "modell=5", "opt.maxitr=1", "model=m2", "--flag", "sp"},
     ended(1, "",
           "water.qin: note: no match for 'modell': no command 'modell'; did you mean 'model'?\n"
           "water.qin: note: no match for 'opt.maxitr': the command has no parameter 'maxitr'; did "
           "you mean 'maxiter'?\n"
           "water.qin: note: no match for 'sp': no command 'sp'\n")},
    {"NoChargeLineIsCreatedIfOnlyExistingIsSet",
     {"set", "--existing", "-", "@charge=1"},
     ended(1, "", "<stdin>: note: no match for '@charge'\n"),
     "#sp\nXYZ a\n"},
    {"WhatExistsIsSet",
     {"set", "--existing", "-", "@charge=1", "opt.x=2", "model=b"},
     ended(0, "#opt(x=2)\n#model = b\n1 1\n", ""),
     "#opt(x=1)\n#model=a\n0 1\n"},
    {"ACommandWithoutAName",
     {"set", "-", "@commands[0]=5", "@commands[1].z=2", "--flag", "@commands[2]"},
     ended(0, "# = 5\n#opt(x=1, z=2)\n#sp\n0 1\n",
           "<stdin>:1: warning: empty QUILL header command\n"),
     "#\n#opt(x=1)\n#sp\n0 1\n"},
    {"ACommandThatIsNotThere",
     {"set", "-", "@commands[1]=5"},
     ended(1, "",
           "<stdin>: note: no match for '@commands[1]': there is only 1 command, and [N] counts "
           "from 0\n"),
     "#opt\n0 1\n"},
    {"APostProcessingLine",
     {"set", "water.qin", "@bond[0]=1,2"},
     usage_error("'@bond[0]' cannot be set; 'unset' removes such lines, and 'add' adds them")},
    {"BadMaxChange",
     {"set", "--max-change", "-1", "water.qin", "model=a"},
     usage_error("--max-change takes a number that is 0 or larger, such as '1e-6', not '-1'")},
    {"MaxChangeThatIsNotANumber",
     {"set", "--max-change=nan", "water.qin", "model=a"},
     usage_error("--max-change takes a number that is 0 or larger, such as '1e-6', not 'nan'")},
    {"UnreadableAtoms",
     {"set", "water.qin", "--atoms", "none.xyz"},
     ended(2, "", "none.xyz: error: cannot be opened: No such file or directory\n")},
    {"TooFewAtoms",
     {"set", "water.qin", "--atoms", "-"},
     ended(2, "", "<stdin>:1: error: has 1 atom instead of 2\n"),
     "2\n\nHe 0 0 0\n"},
    {"AnAtomThatIsNone",
     {"set", "-i", "water.qin", "--atoms=-", "--stdin-filename=b.xyz"},
     ended(2, "", "b.xyz:3: error: expected an atom, a symbol and three coordinates\n"),
     "1\n\nHe 0 0\n"},
    {"BadAtoms",
     {"set", "two_opts.qin", "--atoms", "water.qin"},
     ended(2, "",
           "water.qin:1: error: an XYZ file begins with the number of its atoms, 1 or more\n")},
    {"AtomsOfTheLastStructure",
     {"set", "-q", "bare.qin", "--atoms", "-", "--frame", "-1"},
     ended(0, "#sp\n\nHe       0.000000      0.000000      2.000000\n", ""),
     "1\n\nHe 0 0 1\n1\n\nHe 0 0 2\n"},
    {"AnUnknownElementInASecondStructure",
     {"set", "bare.qin", "--atoms", "-", "--frame=2"},
     ended(0, "#sp\n\nD        0.000000      0.000000      2.000000\n",
           "<stdin>:6: warning: unknown element symbol 'D'\n"
           "bare.qin: warning: No QUILL coordinate section found\n"),
     "1\n\nHe 0 0 1\n1\n\nD 0 0 2\n"},
    {"AFrameOfNothing",
     {"set", "water.qin", "--frame", "1", "model=a"},
     usage_error("--frame needs --atoms")},
    {"AFrameBeforeTheFirst",
     {"set", "water.qin", "--atoms", "water.xyz", "--frame", "0"},
     usage_error("--frame counts from 1, or from the end with -1")},
    {"AFrameThatIsNoNumber",
     {"set", "water.qin", "--atoms", "water.xyz", "--frame", "last"},
     usage_error("--frame takes an integer, not 'last'")},
    {"AtomsThatAreNowhere",
     {"set", "water.qin", "--atoms", "-"},
     refused("atom 2 has a coordinate that is infinite or not a number"),
     "2\n\nHe 0 0 0\nHe 0 nan 0\n"},
    {"AtomsThatAreInfinitelyFarAway",
     {"set", "--allow-loss", "bare.qin", "--atoms", "-"},
     ended(0,
           "#sp\n\nHe       0.000000      0.000000           inf\n"
           "He           -inf      0.000000      0.000000\n",
           "bare.qin: warning: No QUILL coordinate section found\n"
           "bare.qin: warning: atom 1 has a coordinate that is infinite or not a number\n"
           "bare.qin: warning: atom 2 has a coordinate that is infinite or not a number\n"),
     "2\n\nHe 0 0 inf\nHe -inf 0 0\n"},
    {"OtherEditsOfAtomsThatAreNowhere",
     {"set", "-", "sp=b"},
     ended(0, "#sp = b\n\nHe 0 nan 0\n", ""),
     "#sp\n\nHe 0 nan 0\n"},
    {"OneCommandOfSeveral",
     {"set", "-", "model=c"},
     ended(0, "#model = c\n#model=b\n0 1\n",
           "<stdin>:1: note: 'model' is also on line 2; the first is used\n"),
     "#model=a\n#model=b\n0 1\n"},
    {"OneParameterOfSeveral",
     {"set", "-", "opt.x=3", "opt.y=4"},
     ended(0, "#opt(x=3, x=2, y=4)\n#opt\n0 1\n",
           "<stdin>:1: note: 'opt' is also on line 2; the first is used\n"
           "<stdin>:1: note: 'opt' has 1 other parameter 'x'; the first is used\n"),
     "#opt(x=1, x=2)\n#opt\n0 1\n"},
    {"StandardInputTwice",
     {"set", "-", "--atoms", "-"},
     ended(2, "", "<stdin>: error: standard input was read already, and can be read only once\n"),
     "1\n\nHe 0 0 0\n"},
    {"StandardInputInPlace",
     {"set", "-i", "-", "model=m2"},
     ended(2, "", "<stdin>: error: standard input cannot be changed in place\n"),
     "#model=m1\n0 1"},
    {"DifferenceInPlace",
     {"set", "-i", "--diff", "water.qin", "model=m2"},
     usage_error("--check and --diff write no file and cannot be used with --in-place")},
    {"BackupOfNothing",
     {"set", "--backup", "water.qin", "model=m2"},
     usage_error("--backup needs --in-place")},
    {"BreakingLinksOfNothing",
     {"set", "--break-hard-links", "water.qin", "model=m2"},
     usage_error("--break-hard-links needs --in-place")},
    {"BackupWithoutSuffix",
     {"set", "-i", "--backup=", "water.qin", "model=m2"},
     usage_error("--backup takes a suffix for the name of the file, such as '.bak', not ''")},
    {"BackupInAnotherFolder",
     {"set", "-i", "--backup=/../x", "water.qin", "model=m2"},
     usage_error("--backup takes a suffix for the name of the file, such as '.bak', not '/../x'")},
};

TEST_P(Set, ChangesWhatItIsTold) { expect_outcome(GetParam()); }

INSTANTIATE_TEST_SUITE_P(Table, Set, testing::ValuesIn(calls),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace kelp::input::quill::tool
