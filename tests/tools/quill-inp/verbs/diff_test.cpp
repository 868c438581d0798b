#include <gtest/gtest.h>

#include <string>

#include "tools/quill-inp/support/call.hpp"

namespace kelp::input::quill::tool {
namespace {

class Diff : public testing::TestWithParam<Call> {};

const std::string json_head = R"({"before": "bare.qin", "after": "<stdin>", "count": )";

const Call calls[] = {
    {"IsNothingForAnotherLayout", {"diff", "water.qin", "by_hand.qin"}, ended(0, "", "")},
    {"IsOnlyAboutMeaning",
     {"diff", "water.qin", "-"},
     ended(0, "", ""),
     "#OPT(Maxiter='50',tight)\n#Model=m1\n0 1\no 0 -0 .117176\nH 0 0.75695 -0.468706\n"
     "H 0 -0.75695 -0.468706\n"},
    {"WithoutASecondFile",
     {"diff", "water.qin"},
     ended(2, "",
           "quill-inp: error: diff takes two files, here 1 file\n"
           "quill-inp: note: see 'quill-inp diff --help'\n")},
    {"WithAThirdFile",
     {"diff", "water.qin", "water.qin", "water.qin"},
     ended(2, "",
           "quill-inp: error: diff takes two files, here 3 files\n"
           "quill-inp: note: see 'quill-inp diff --help'\n")},
    {"OfFilesThatAreMissingTellsOfBoth",
     {"diff", "a.qin", "b.qin"},
     ended(2, "",
           "a.qin: error: cannot be opened: No such file or directory\n"
           "b.qin: error: cannot be opened: No such file or directory\n")},
    {"OfTheSecondFileThatIsMissing",
     {"diff", "water.qin", "b.qin"},
     ended(2, "", "b.qin: error: cannot be opened: No such file or directory\n")},
    {"OfTheSameWithWarningsThatCount",
     {"diff", "--strict", "bare.qin", "-"},
     ended(1, "",
           "bare.qin: warning: No QUILL coordinate section found\n"
           "<stdin>: warning: No QUILL coordinate section found\n"),
     "#SP\n"},
    {"OfTheSameWithWarningsThatDoNotCount", {"diff", "bare.qin", "bare.qin"}, ended(0, "", "")},
    {"OfTheSameWithoutWarnings",
     {"diff", "--strict", "water.qin", "by_hand.qin"},
     ended(0, "", "")},
    {"OfOneWithWarningsThatCountAndAMissingOne",
     {"diff", "--strict", "-q", "bare.qin", "none.qin"},
     ended(2, "", "none.qin: error: cannot be opened: No such file or directory\n")},
    {"OfStandardInputWithItself",
     {"diff", "-", "-"},
     ended(2, "", "<stdin>: error: standard input was read already, and can be read only once\n"),
     "#sp\n"},
    {"AsJson",
     {"diff", "--json", "bare.qin", "-"},
     ended(1,
           json_head + R"(5, "differences": [{"kind": "command", "after": "#freq"}, )"
                       R"({"kind": "charge", "before": "0", "after": "-1"}, )"
                       R"({"kind": "multiplicity", "before": "1", "after": "2"}, )"
                       R"({"kind": "geometry", "before": "none", "after": "atoms"}, )"
                       R"({"kind": "atom", "number": 1, "after": "H 0 0 0.1"}]})"
                       "\n",
           ""),
     "#sp\n#freq\n-1 2\nH 0 0 .1\n"},
    {"AsJsonOfTheSame",
     {"diff", "--json", "bare.qin", "-"},
     ended(0, json_head + "0, \"differences\": []}\n", ""),
     "# sp"},
    {"OfAnUnmergedPath",
     {"diff", "--git", "a\x1b.qin"},
     ended(0, "unmerged path a\\x1b.qin\n", "")},
    {"WithTooFewArgumentsOfGit",
     {"diff", "--git", "p", "water.qin", "0", "0", "bare.qin", "0"},
     ended(2, "",
           "quill-inp: error: --git takes the arguments that git gives\n"
           "quill-inp: note: see 'quill-inp diff --help'\n")},
    {"ForGitWithWarningsThatCount",
     {"diff", "--git", "--strict", "p.qin", "bare.qin", "0", "0", "bare.qin", "0", "0"},
     ended(2, "",
           "quill-inp: error: --git and --strict cannot be used together: git stops at any exit "
           "code but 0\n"
           "quill-inp: note: see 'quill-inp diff --help'\n")},
    {"ForGitSaysDoneAlthoughTheyDiffer",
     {"diff", "--git", "p.qin", "bare.qin", "0", "0", "-", "0", "0", "and", "more"},
     ended(0, "--- a/p.qin\n+++ b/p.qin\n+ #freq\n", ""),
     "#sp\n#freq\n"},
    {"ForGitOfANewFile",
     {"diff", "--git", "p.qin", "/dev/null", "0", "0", "bare.qin", "0", "0"},
     ended(0, "--- /dev/null\n+++ b/p.qin\n+ #sp\n", "")},
    {"ForGitOfARemovedFile",
     {"diff", "--git", "p.qin", "bare.qin", "0", "0", "/dev/null", "0", "0"},
     ended(0, "--- a/p.qin\n+++ /dev/null\n- #sp\n", "")},
};

TEST_P(Diff, Call) { expect_outcome(GetParam()); }

INSTANTIATE_TEST_SUITE_P(Table, Diff, testing::ValuesIn(calls),
                         [](const auto& call) { return std::string(call.param.name); });

}  // namespace
}  // namespace kelp::input::quill::tool
