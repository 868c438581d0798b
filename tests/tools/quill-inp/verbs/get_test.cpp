#include <gtest/gtest.h>

#include <string>

#include "tools/quill-inp/support/call.hpp"

namespace kelp::input::quill::tool {
namespace {

const std::string two_opts_warnings =
    "two_opts.qin:2: warning: ignored trailing text after QUILL header command\n"
    "two_opts.qin:6: warning: ignored unrecognized QUILL post-processing line\n";

class Get : public testing::TestWithParam<Call> {};

const Call calls[] = {
    {"Assignment", {"get", "water.qin", "model"}, ended(0, "m1\n", "")},
    {"AssignmentInQuotes", {"get", "by_hand.qin", "model"}, ended(0, "m1\n", "")},
    {"NamesInAnyLetterCase",
     {"get", "water.qin", "MODEL", "Opt.MAXITER"},
     ended(0, "m1\n50\n", "")},
    {"NameWithItsHash", {"get", "water.qin", "#model"}, ended(0, "m1\n", "")},
    {"ParameterList", {"get", "by_hand.qin", "opt"}, ended(0, "(maxiter=50, tight)\n", "")},
    {"Flag",
     {"get", "bare.qin", "sp"},
     ended(0, "flag\n", "bare.qin: warning: No QUILL coordinate section found\n")},
    {"ParameterWithoutValue", {"get", "water.qin", "opt.tight"}, ended(0, "flag\n", "")},
    {"Parameter", {"get", "water.qin", "opt.maxiter"}, ended(0, "50\n", "")},
    {"TheFirstOfSeveral", {"get", "-q", "two_opts.qin", "opt.maxiter"}, ended(0, "50\n", "")},
    {"TheFirstByNumber", {"get", "-q", "two_opts.qin", "opt[0].maxiter"}, ended(0, "50\n", "")},
    {"NotesTheOtherCommandWithTheName",
     {"get", "two_opts.qin", "opt.maxiter", "opt"},
     ended(
         0, "50\n(maxiter=50)\n",
         two_opts_warnings + "two_opts.qin:1: note: 'opt' is also on line 2; the first is used\n")},
    {"NotesAllOtherCommandsWithTheName",
     {"get", "-", "a", "b", "c"},
     ended(0, "1\nflag\n5\n",
           "<stdin>:1: note: 'a' is also on lines 2, 4 and 6; the first is used\n"
           "<stdin>:5: note: 'B' is also on lines 7 and 8; the first is used\n"),
     "#a=1\n# A = 2\n\n##a=3\n#B\n#a\n#b=4\n#b\n#c=5\n0 1\n"},
    {"NotesTheOtherParameterWithTheName",
     {"get", "-", "opt.x", "opt[0].X", "opt.y"},
     ended(0, "1\n1\nflag\n",
           "<stdin>:1: note: 'opt' has 1 other parameter 'x'; the first is used\n"),
     "#opt(x=1, y, X = 2)\n0 1\n"},
    {"NotesAllOtherParametersWithTheName",
     {"get", "-", "opt.x"},
     ended(0, "1\n", "<stdin>:1: note: 'opt' has 2 other parameters 'x'; the first is used\n"),
     "#opt(x=1, x, X = 2)\n0 1\n"},
    {"PostProcessingLines",
     {"get", "-", "@bonds", "@angles", "@dihedrals", "@atom_constraints", "@scans", "@post_files",
      "@raw", "@bond[1]", "@raw[0]"},
     ended(0,
           "1 2\n3 4\n1 2 3\n1 2 3 4\n7\n1 2 0.1234567 5\n1 2 3 90 12\nout put\nmore  text\n3 4\n"
           "more  text\n",
           ""),
     "XYZ a\nB 1 2\nc 7\n b 3 4\nA 1 2 3\nD 1 2 3 4\nS 1 2 0.1234567 5 \nS 1 2 3 90 12\n"
     "POST out put\nmore  text\n"},
    {"FormulaAndNumberOfAtoms",
     {"get", "water.qin", "@formula", "@natoms"},
     ended(0, "H2O\n3\n", "")},
    {"AllKeys",
     {"get", "two_opts.qin", "-q", "@keys"},
     ended(0, "opt\nopt.maxiter\nOpt[1]\nOpt[1].maxiter\n", "")},
    {"NoKeys",
     {"get", "-", "@keys"},
     ended(1, "", "<stdin>: note: no match for '@keys'\n"),
     "0 1\nHe 0 0 0\n"},
    {"NoFormulaOfAtomsInFiles",
     {"get", "-", "@formula", "@natoms"},
     ended(1, "",
           "<stdin>: note: no match for '@formula'\n<stdin>: note: no match for '@natoms'\n"),
     "XYZ a\n"},
    {"NoSuchLine",
     {"get", "-", "@bond[2]", "@scans", "@scan[0]", "@bond[0]"},
     ended(1, "",
           "<stdin>: note: no match for '@bond[2]': there are only 2 bond constraints, and [N] "
           "counts from 0\n"
           "<stdin>: note: no match for '@scans'\n<stdin>: note: no match for '@scan[0]'\n"),
     "XYZ a\nB 1 2\nB 3 4\n"},
    {"AnyCommandByItsNumber",
     {"get", "-q", "-", "@commands[0]", "@commands[1]", "@commands[2].x", "@commands[2]"},
     ended(0, "5\nflag\n1\n(x=1)\n", ""),
     "# = 5\n#opt\n#opt(x=1)\n0 1\n"},
    {"NoSuchCommand",
     {"get", "-", "@commands[1]", "@commands[0].y"},
     ended(1, "",
           "<stdin>: note: no match for '@commands[1]': there is only 1 command, and [N] counts "
           "from 0\n"
           "<stdin>: note: no match for '@commands[0].y': the command has no parameter "
           "'y'\n"),
     "#opt(x=1)\n0 1\n"},
    {"ADefaultForWhatIsMissing",
     {"get", "water.qin", "--default=none", "model", "modle", "@scans", "opt.tight"},
     ended(0, "m1\nnone\nnone\nflag\n", "")},
    {"AnEmptyDefault", {"get", "--default=", "water.qin", "modle"}, ended(0, "\n", "")},
    {"JsonTellsAFlagAValueAndNothingApart",
     {"get", "--json", "-", "a", "b", "c", "d", "d.x", "d.y", "d.z"},
     ended(1,
           R"({"file": "<stdin>", "answers": [)"
           R"({"key": "a", "command": {"name": "A", "kind": "flag"}}, )"
           R"({"key": "b", "command": {"name": "b", "kind": "assignment", "value": "flag"}}, )"
           R"({"key": "c", "missing": true}, )"
           R"({"key": "d", "command": {"name": "d", "kind": "parameter_list", "parameters": )"
           R"([{"name": "x"}, {"name": "y", "value": "1"}]}}, )"
           R"({"key": "d.x", "parameter": {"name": "x"}}, )"
           R"({"key": "d.y", "parameter": {"name": "y", "value": "1"}}, )"
           R"({"key": "d.z", "missing": true}]})"
           "\n",
           "<stdin>: note: no match for 'c': no command 'c'\n"
           "<stdin>: note: no match for 'd.z': the command has no parameter 'z'\n"),
     "#A\n#b=flag\n#d(x, y=1)\n0 1\n"},
    {"JsonOfTheOtherKeys",
     {"get", "--json", "-", "@charge", "@multiplicity", "@geometry", "@atoms", "@formula",
      "@natoms", "@bonds", "@raw", "@scan[0]"},
     ended(0,
           R"({"file": "<stdin>", "answers": [{"key": "@charge", "value": -1}, )"
           R"({"key": "@multiplicity", "value": 2}, {"key": "@geometry", "value": "atoms"}, )"
           R"({"key": "@atoms", "atoms": [{"symbol": "He", "x": 0.0, "y": 0.5, "z": 1.0}]}, )"
           R"({"key": "@formula", "value": "He"}, {"key": "@natoms", "value": 1}, )"
           R"({"key": "@bonds", "lines": [{"kind": "bond_constraint", "atom_indices": [1, 2]}]}, )"
           R"({"key": "@raw", "lines": [{"kind": "raw", "raw_text": "text"}]}, )"
           R"({"key": "@scan[0]", "lines": [{"kind": "scan", "atom_indices": [1, 2], )"
           R"("scan_value": 1.5, "scan_steps": 3}]}]})"
           "\n",
           ""),
     "-1 2\nHe 0 0.5 1\nB 1 2\ntext\nS 1 2 1.5 3\n"},
    {"JsonOfAllKeys",
     {"get", "--json", "bare.qin", "-q", "@keys"},
     ended(0,
           R"({"file": "bare.qin", "answers": [{"key": "@keys", "keys": ["sp"]}]})"
           "\n",
           "")},
    {"JsonOfFilesAndDefaults",
     {"get", "--json", "--default", "0", "two_opts.qin", "-q", "@files", "@charge"},
     ended(0,
           R"({"file": "two_opts.qin", "answers": [{"key": "@files", "paths": ["a b.xyz", )"
           R"("c.xyz"]}, {"key": "@charge", "missing": true, "value": "0"}]})"
           "\n",
           "")},
    {"NotesNothingForANumber",
     {"get", "-", "opt[0]", "opt[1].x"},
     ended(0, "(x=1)\n2\n", ""),
     "#opt(x=1)\n#opt(x=2)\n0 1\n"},
    {"TheSecond", {"get", "two_opts.qin", "opt[1].maxiter"}, ended(0, "70\n", two_opts_warnings)},
    {"TheSecondAsAWhole", {"get", "two_opts.qin", "opt[1]", "-q"}, ended(0, "(maxiter=70)\n", "")},
    {"ChargeAndMultiplicity",
     {"get", "water.qin", "@charge", "@multiplicity"},
     ended(0, "0\n1\n", "")},
    {"Geometry", {"get", "water.qin", "@geometry"}, ended(0, "atoms\n", "")},
    {"GeometryOfFiles", {"get", "-q", "two_opts.qin", "@geometry"}, ended(0, "xyz_file\n", "")},
    {"Files", {"get", "-q", "two_opts.qin", "@files"}, ended(0, "a b.xyz\nc.xyz\n", "")},
    {"Atoms",
     {"get", "water.qin", "@atoms"},
     ended(0, "O 0 0 0.117176\nH 0 0.75695 -0.468706\nH 0 -0.75695 -0.468706\n", "")},
    {"StandardInput", {"get", "-", "model"}, ended(0, "m2\n", ""), "#model=m2\n0 1\n"},
    {"BytesAsTheyAre",
     {"get", "-", "model"},
     ended(0, "a\x1B\xFF\n", ""),
     "#model=a\x1B\xFF\n0 1\n"},
    {"EmptyValue", {"get", "-", "model"}, ended(0, "\n", ""), "#model=\n0 1\n"},
    {"ParametersAreSpelledToReadBack",
     {"get", "-", "opt"},
     ended(0, "(basis=\"a,b\")\n", ""),
     "#opt(basis='a,b')\n0 1\n"},
    {"NoCommand",
     {"get", "water.qin", "freq"},
     ended(1, "", "water.qin: note: no match for 'freq': no command 'freq'\n")},
    {"NoCommandButOneLikeIt",
     {"get", "water.qin", "modle"},
     ended(1, "",
           "water.qin: note: no match for 'modle': no command 'modle'; did you mean "
           "'model'?\n")},
    {"NoParameterButOneLikeIt",
     {"get", "water.qin", "opt.maxitr"},
     ended(1, "",
           "water.qin: note: no match for 'opt.maxitr': the command has no parameter "
           "'maxitr'; did you mean 'maxiter'?\n")},
    {"NoSuchOccurrence",
     {"get", "water.qin", "opt[1]"},
     ended(1, "",
           "water.qin: note: no match for 'opt[1]': there is only 1 command 'opt', "
           "and [N] counts from 0\n")},
    {"NoThirdOccurrence",
     {"get", "two_opts.qin", "opt[2]"},
     ended(1, "",
           two_opts_warnings +
               "two_opts.qin: note: no match for 'opt[2]': there are only 2 commands 'opt', "
               "and [N] counts from 0\n")},
    {"NoChargeLine", {"get", "-q", "two_opts.qin", "@charge"}, ended(1, "", "")},
    {"NoMultiplicity", {"get", "-q", "two_opts.qin", "@multiplicity"}, ended(1, "", "")},
    {"NoAtoms", {"get", "-q", "two_opts.qin", "@atoms"}, ended(1, "", "")},
    {"NoFiles",
     {"get", "water.qin", "@files"},
     ended(1, "", "water.qin: note: no match for '@files'\n")},
    {"NoGeometry", {"get", "-q", "bare.qin", "@geometry"}, ended(1, "", "")},
    {"OneKeyOfTwoWithoutMatchPrintsNothing",
     {"get", "water.qin", "model", "freq", "opt"},
     ended(1, "", "water.qin: note: no match for 'freq': no command 'freq'\n")},
    {"AFileThatIsNotThere",
     {"get", "none.qin", "model"},
     ended(2, "", "none.qin: error: cannot be opened: No such file or directory\n")},
    {"NoKey",
     {"get", "water.qin"},
     ended(2, "",
           "quill-inp: error: KEY is required\n"
           "quill-inp: note: see 'quill-inp get --help'\n")},
    {"NoFile",
     {"get"},
     ended(2, "",
           "quill-inp: error: FILE is required\n"
           "quill-inp: note: see 'quill-inp get --help'\n")},
    {"AKeyAndNoFile",
     {"get", "-k", "model"},
     ended(2, "",
           "quill-inp: error: FILE is required\n"
           "quill-inp: note: see 'quill-inp get --help'\n")},
    {"NamesAlwaysAndNever",
     {"get", "--with-filename", "--no-filename", "water.qin", "model"},
     ended(2, "",
           "quill-inp: error: --with-filename and --no-filename cannot be used together\n"
           "quill-inp: note: see 'quill-inp get --help'\n")},
    {"KeysBesideAList",
     {"get", "--files-from=-", "model", "opt.maxiter"},
     ended(0, "water.qin:m1\nwater.qin:50\n", ""),
     "water.qin\n"},
    {"BadKeyBeforeTheFileIsLookedAt",
     {"get", "none.qin", "a["},
     ended(2, "",
           "quill-inp: error: bad key 'a[': a number and ']' must follow '['; a key is COMMAND, "
           "COMMAND.PARAMETER, COMMAND[N] or COMMAND[N].PARAMETER, where N counts from 0, or "
           "begins with '@', such as @charge, @bonds, @bond[N] or @commands[N]\n"
           "quill-inp: note: see 'quill-inp get --help'\n")},
};

TEST_P(Get, PrintsWhatTheInputSays) { expect_outcome(GetParam()); }

INSTANTIATE_TEST_SUITE_P(Table, Get, testing::ValuesIn(calls),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace kelp::input::quill::tool
