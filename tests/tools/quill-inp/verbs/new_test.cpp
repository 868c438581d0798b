#include <gtest/gtest.h>

#include <string>

#include "tools/quill-inp/support/call.hpp"

namespace kelp::input::quill::tool {
namespace {

Outcome usage_error(const std::string& message) {
  return ended(2, "",
               "quill-inp: error: " + message + "\nquill-inp: note: see 'quill-inp new --help'\n");
}

const std::string no_coordinates = "<stdout>: warning: No QUILL coordinate section found\n";

class New : public testing::TestWithParam<Call> {};

const Call calls[] = {
    {"Everything",
     {"new",    "--task",         "opt",     "--param", "maxiter=50", "--param", "tight",
      "--task", "freq",           "--model", "m1",      "--device",   "gpu",     "--charge",
      "-1",     "--multiplicity", "2",       "--atoms", "water.xyz",  "--bond",  "1,2",
      "--scan", "1,2,3:90:5",     "--post",  "a b"},
     ended(0,
           "#opt(maxiter=50, tight)\n#freq\n#model = m1\n#device = gpu\n\n-1 2\n"
           "O        0.000000      0.000000      0.117176\n"
           "H        0.000000      0.756950     -0.468706\n"
           "H        0.000000     -0.756950     -0.468706\n\n"
           "B 1 2\nS 1 2 3 90 5\nPOST a b\n",
           "")},
    {"Nothing", {"new"}, ended(0, "", no_coordinates)},
    {"ATask", {"new", "--task", "sp"}, ended(0, "#sp\n", no_coordinates)},
    {"ATaskAsInTheFile", {"new", "--task", "# opt "}, ended(0, "#opt\n", no_coordinates)},
    {"ATaskWithoutAName", {"new", "--task", ""}, usage_error("--task takes a name, not ''")},
    {"ATaskOfBlanks", {"new", "--task= "}, usage_error("--task takes a name, not ' '")},
    {"ATaskOfAHash", {"new", "--task", "#"}, usage_error("--task takes a name, not '#'")},
    {"ATaskOfHashes", {"new", "--task", "# #"}, usage_error("--task takes a name, not '# #'")},
    {"TheSameTaskTwice",
     {"new", "-q", "--task", "scan", "--param", "a=1", "--task=scan"},
     ended(0, "#scan(a=1)\n#scan\n", "")},
    {"EmptyParameter", {"new", "-q", "--task", "opt", "--param", "a="}, ended(0, "#opt(a=)\n", "")},
    {"ParameterWithTwoEqualsSigns",
     {"new", "-q", "--task", "opt", "--param", "a=b=c"},
     ended(0, "#opt(a=b=c)\n", "")},
    {"ValuesThatNeedQuotes",
     {"new", "-q", "--task", "opt", "--param", "a=b,c", "--model", " m "},
     ended(0, "#opt(a=\"b,c\")\n#model = \" m \"\n", "")},
    {"ChargeAlone", {"new", "--charge", "2"}, ended(0, "2 1\n", "")},
    {"MultiplicityAlone", {"new", "--multiplicity", "3"}, ended(0, "0 3\n", "")},
    {"Files", {"new", "--xyz", "a", "b c", "--charge=0"}, ended(0, "0 1\nXYZ a\nXYZ b c\n", "")},
    {"Trajectory", {"new", "--trajectory", "t"}, ended(0, "XYZTRAJ t\n", "")},
    {"ABondOfAtomsThatAreNotThere",
     {"new", "--atoms", "water.xyz", "--bond", "5,9"},
     ended(2, "",
           "<new>: error: refused: 'B 5 9' names atom 5, but there are only 3 atoms; use "
           "--allow-loss to write it anyway\n")},
    {"AtomsOfUnknownElements",
     {"new", "--atoms", "odd.xyz"},
     ended(0,
           "He       0.000000      0.000000      0.123457\n"
           "D        0.000000      0.000000      1.000000\n",
           "odd.xyz:4: warning: unknown element symbol 'D'\n"
           "<new>: note: 1 number changes, by up to 2.2e-07\n"
           "<stdout>:2: warning: unknown element symbol 'D'\n")},
    {"AnAngleAfterAtoms",
     {"new", "-q", "--atoms", "water.xyz", "--angle", "1,2,3"},
     ended(2, "",
           "<new>: error: refused: line 5 would be read as an atom of element A, not as an angle "
           "constraint; put another post-processing line before it to avoid that; use --allow-loss "
           "to "
           "write it anyway\n")},
    {"DigitsThatWouldGo",
     {"new", "-q", "--max-change=0", "--atoms", "odd.xyz"},
     ended(
         2, "",
         "<new>: error: refused: line 1 would be read differently: z of atom 1 is 0.123457 instead "
         "of 0.12345678; use --allow-loss to write it anyway\n")},
    {"ParameterBeforeATask",
     {"new", "--param", "a", "--task", "opt"},
     usage_error("--param must come after the --task that it belongs to")},
    {"NamelessParameter",
     {"new", "--task", "opt", "--param", "=1"},
     usage_error("--param takes NAME or NAME=VALUE, not '=1'")},
    {"ChargeThatIsNotANumber",
     {"new", "--charge", "1.0"},
     usage_error("--charge takes an integer, not '1.0'")},
    {"MultiplicityThatIsNotANumber",
     {"new", "--multiplicity="},
     usage_error("--multiplicity takes an integer, not ''")},
    {"TwoGeometries",
     {"new", "--atoms", "water.xyz", "--xyz", "a"},
     usage_error("only one of --atoms, --xyz and --trajectory can be given")},
    {"ASettingForAPath",
     {"new", "--xyz", "a", "model=m2"},
     usage_error("--xyz takes a path, but 'model=m2' looks like a setting; put settings before the "
                 "options or after '--', or write './model=m2' for a path")},
    {"ASettingForATrajectory",
     {"new", "--trajectory=model=m2"},
     usage_error("--trajectory takes a path, but 'model=m2' looks like a setting; put settings "
                 "before the options or after '--', or write './model=m2' for a path")},
    {"TheSameOptionTwice",
     {"new", "--charge", "1", "--charge", "2"},
     usage_error("--charge can be given only once")},
    {"AFile", {"new", "water.qin"}, usage_error("unexpected argument 'water.qin'")},
    {"UnreadableAtoms",
     {"new", "--atoms", "none.xyz"},
     ended(2, "", "none.xyz: error: cannot be opened: No such file or directory\n")},
    {"BadAtoms",
     {"new", "--atoms", "water.qin"},
     ended(2, "",
           "water.qin:1: error: an XYZ file begins with the number of its atoms, 1 or more\n")},
};

TEST_P(New, MakesAnInput) { expect_outcome(GetParam()); }

INSTANTIATE_TEST_SUITE_P(Table, New, testing::ValuesIn(calls),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace kelp::input::quill::tool
