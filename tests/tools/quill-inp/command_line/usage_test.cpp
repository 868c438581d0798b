#include <gtest/gtest.h>

#include <string>

#include "support/temporary_folder.hpp"
#include "tools/quill-inp/support/call.hpp"
#include "tools/quill-inp/support/files.hpp"

namespace kelp::input::quill::tool {
namespace {

Outcome usage_error(const std::string& message, const std::string& verb = "") {
  return ended(
      2, "",
      "quill-inp: error: " + message + "\nquill-inp: note: see 'quill-inp" + verb + " --help'\n");
}

class Usage : public testing::TestWithParam<Call> {};

const Call calls[] = {
    {"NoVerb", {"--"}, usage_error("no verb")},
    {"UnknownVerb", {"shwo"}, usage_error("unknown verb 'shwo'; did you mean 'show'?")},
    {"UnknownVerbLikeNone",
     {"frobnicate", "water.qin", "--json"},
     usage_error("unknown verb 'frobnicate'")},
    {"VerbsAreInLowerCase",
     {"SHOW", "water.qin"},
     usage_error("unknown verb 'SHOW'; did you mean 'show'?")},
    {"NoAbbreviations",
     {"sho", "water.qin"},
     usage_error("unknown verb 'sho'; did you mean 'show'?")},
    {"OptionBeforeTheVerb",
     {"-q", "show", "water.qin"},
     ended(2, "", "quill-inp: error: '-q' must come after the verb\n")},
    {"UnknownLongOptionOfTheProgram",
     {"--versoin"},
     usage_error("unknown option '--versoin'; did you mean '--version'?")},
    {"UnknownOption",
     {"show", "--jsno", "water.qin"},
     usage_error("unknown option '--jsno'; did you mean '--json'?", " show")},
    {"UnknownOptionWithAValue",
     {"show", "--jsno=a", "water.qin"},
     usage_error("unknown option '--jsno'; did you mean '--json'?", " show")},
    {"UnknownOptionAndNoFile",
     {"show", "--jsno"},
     usage_error("unknown option '--jsno'; did you mean '--json'?", " show")},
    {"OptionInPlaceOfAValue",
     {"set", "water.qin", "--flag", "--diff"},
     usage_error("--flag needs a value; write '--flag=--diff' if '--diff' is the value", " set")},
    {"OptionInPlaceOfAValueOfAnotherKind",
     {"new", "--model", "--device", "gpu"},
     usage_error("--model needs a value; write '--model=--device' if '--device' is the value",
                 " new")},
    {"ShortOptionInPlaceOfAValue",
     {"new", "--model", "-i"},
     usage_error("--model needs a value; write '--model=-i' if '-i' is the value", " new")},
    {"OptionInPlaceOfAValueAndNoFile",
     {"show", "--color", "--json"},
     usage_error("--color needs a value; write '--color=--json' if '--json' is the value",
                 " show")},
    {"OptionInPlaceOfAPath",
     {"set", "water.qin", "--xyz", "--diff"},
     usage_error("--xyz needs a value; write '--xyz=--diff' if '--diff' is the value", " set")},
    {"OptionWithAValueInPlaceOfAValue",
     {"new", "--model", "--device=gpu"},
     usage_error("--model needs a value; write '--model=--device=gpu' if '--device=gpu' is the "
                 "value",
                 " new")},
    {"DashAndLetterInPlaceOfANumber",
     {"new", "--charge", "-.x"},
     usage_error("--charge needs a value; write '--charge=-.x' if '-.x' is the value", " new")},
    {"ValuesThatBeginWithADash",
     {"new", "--task=-a", "--param=--b=c", "--model", "-1", "--device", "-.5", "--charge", "-1"},
     ended(0, "#-a(--b=c)\n#model = -1\n#device = -.5\n\n-1 1\n", "")},
    {"ADashAlone", {"new", "--model", "-", "--charge=0"}, ended(0, "#model = -\n\n0 1\n", "")},
    {"UnknownShortOption",
     {"show", "-x", "water.qin"},
     usage_error("unknown option '-x'", " show")},
    {"OptionOfAnotherVerb",
     {"show", "--diff", "water.qin"},
     usage_error("unknown option '--diff'", " show")},
    {"ValueForAFlag",
     {"show", "--json=yes", "water.qin"},
     usage_error("--json takes no value", " show")},
    {"FlagTwice", {"get", "-q", "-q", "water.qin", "model"}, ended(0, "m1\n", "")},
    {"ExclusiveForms",
     {"show", "--json", "--lines", "water.qin"},
     usage_error("--json and --lines cannot be used together", " show")},
    {"UnknownColour",
     {"show", "--color=alwys", "water.qin"},
     usage_error("--color takes auto, always or never, not 'alwys'; did you mean 'always'?",
                 " show")},
    {"NoColour",
     {"show", "--color=", "water.qin"},
     usage_error("--color takes auto, always or never, not ''", " show")},
    {"NoFile", {"show"}, usage_error("FILE is required", " show")},
    {"SizeThatIsNone",
     {"show", "--max-size", "big", "water.qin"},
     usage_error("--max-size takes a number of bytes, KiB, MiB or GiB, such as '256MiB', not 'big'",
                 " show")},
    {"SizeInUnknownUnits",
     {"show", "--max-size", "1MB", "water.qin"},
     usage_error("--max-size takes a number of bytes, KiB, MiB or GiB, such as '256MiB', not '1MB'",
                 " show")},
    {"NegativeSize",
     {"show", "--max-size=-1", "water.qin"},
     usage_error("--max-size takes a number of bytes, KiB, MiB or GiB, such as '256MiB', not '-1'",
                 " show")},
    {"SizeBeyondAllMemory",
     {"show", "--max-size=4611686018427387904", "water.qin"},
     usage_error("--max-size takes a number of bytes, KiB, MiB or GiB, such as '256MiB', not "
                 "'4611686018427387904'",
                 " show")},
    {"SizeBeyondAllMemoryInUnits",
     {"show", "--max-size=17179869184GiB", "water.qin"},
     usage_error("--max-size takes a number of bytes, KiB, MiB or GiB, such as '256MiB', not "
                 "'17179869184GiB'",
                 " show")},
    {"LargestSize",
     {"get", "--max-size=4611686018427387903", "water.qin", "model"},
     ended(0, "m1\n", "")},
    {"SizeInUnits", {"get", "--max-size=1KiB", "water.qin", "model"}, ended(0, "m1\n", "")},
    {"FileOfExactlyTheSize",
     {"get", "-q", "--max-size=4", "bare.qin", "sp"},
     ended(0, "flag\n", "")},
    {"FileOfAByteMore",
     {"get", "--max-size=3", "bare.qin", "sp"},
     ended(2, "", "bare.qin: error: is larger than 3 bytes, see --max-size\n")},
    {"LimitOfOneByte",
     {"get", "--max-size=1", "bare.qin", "sp"},
     ended(2, "", "bare.qin: error: is larger than 1 byte, see --max-size\n")},
    {"StandardInputOfExactlyTheSize",
     {"get", "-q", "--max-size=4", "-", "sp"},
     ended(0, "flag\n", ""),
     "#sp\n"},
    {"StandardInputOfAByteMore",
     {"get", "--max-size=3", "-", "sp"},
     ended(2, "", "<stdin>: error: is larger than 3 bytes, see --max-size\n"),
     "#sp\n"},
    {"APatternForNoFolder",
     {"show", "--glob", "*.inp", "water.qin"},
     usage_error("--glob needs --recursive", " show")},
    {"NulEndsOfNoList",
     {"show", "-0", "water.qin"},
     usage_error("--null needs --files-from", " show")},
    {"NumberOfThreadsThatIsNone",
     {"show", "-j", "two", "water.qin"},
     usage_error("--jobs takes a number from 0 to 256, not 'two'", " show")},
    {"FewerThreadsThanNone",
     {"show", "--jobs=-1", "water.qin"},
     usage_error("--jobs takes a number from 0 to 256, not '-1'", " show")},
    {"TooManyThreads",
     {"show", "-j257", "water.qin"},
     usage_error("--jobs takes a number from 0 to 256, not '257'", " show")},
    {"AsManyThreadsAsAllowed", {"get", "-j256", "water.qin", "model"}, ended(0, "m1\n", "")},
    {"AThreadForEachProcessor",
     {"get", "-j", "0", "water.qin", "water.qin", "-k", "model"},
     ended(0, "water.qin:m1\nwater.qin:m1\n", "")},
    {"Version", {"--version"}, ended(0, "quill-inp " QUILL_INP_VERSION "\n", "")},
    {"FileNamedAsAVerb",
     {"show", "show"},
     ended(2, "", "show: error: cannot be opened: No such file or directory\n")},
    {"FileNamedAsAnOption",
     {"get", "--", "--json", "a"},
     ended(2, "", "--json: error: cannot be opened: No such file or directory\n")},
    {"QuietErrors",
     {"shwo", "-q", "water.qin"},
     ended(2, "", "quill-inp: error: unknown verb 'shwo'; did you mean 'show'?\n")},
    {"QuietErrorsOfAVerb",
     {"get", "-q", "--color=never", "water.qin"},
     ended(2, "", "quill-inp: error: KEY is required\n")},
    {"QuietErrorsOfAnArgument",
     {"get", "--color=never", "water.qin", "@chrge", "--quiet"},
     ended(2, "", "quill-inp: error: unknown key '@chrge'; did you mean '@charge'?\n")},
    {"ColouredUsageErrors",
     {"get", "-q", "--color=always", "water.qin", "@chrge"},
     ended(2, "",
           "quill-inp: \x1B[1;31merror:\x1B[m unknown key '@chrge'; did you mean '@charge'?\n")},
    {"ColouredErrors",
     {"get", "--color=always", "none", "a"},
     ended(2, "", "none: \x1B[1;31merror:\x1B[m cannot be opened: No such file or directory\n")},
    {"TheNameOfAFileIsShownEscaped",
     {"get", "a\x1B\nb", "a"},
     ended(2, "", "a\\x1b\\nb: error: cannot be opened: No such file or directory\n")},
    {"TheNameOfAnUnknownVerbIsShownEscaped", {"a\x1B"}, usage_error("unknown verb 'a\\x1b'")},
    {"EmptyFileName",
     {"get", "", "a"},
     ended(2, "", ": error: cannot be opened: No such file or directory\n")},
    {"StandardInputTwice",
     {"show", "-", "-"},
     ended(2,
           "<stdin>\n  task          sp\n  geometry      none\n  warning       No QUILL "
           "coordinate section found\n",
           "<stdin>: error: standard input was read already, and can be read only once\n"),
     "#sp\n"},
    {"NameForStandardInput",
     {"get", "-", "a", "--stdin-filename", "job 1"},
     ended(1, "",
           "job 1: warning: No QUILL coordinate section found\n"
           "job 1: note: no match for 'a': no command 'a'\n")},
};

TEST_P(Usage, IsClear) { expect_outcome(GetParam()); }

INSTANTIATE_TEST_SUITE_P(Table, Usage, testing::ValuesIn(calls),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(FileNames, OfAnyKindAreTaken) {
  const TemporaryFolder folder;
  for (const char* name : {"a b.qin", "\xC3\xA4\xE2\x82\xAC.qin", "[a]", "[a,b]", "++", "{}", "%%",
                           "-", "--json", "show", "a\nb", "\xFF", "=", "--x="}) {
    folder.write(name, std::string("#model = ") + name + "\n0 1\n");
    const std::string path = std::string("./") + name;
    const Outcome outcome = run_in(folder.path(), {"get", "-q", "--", path, "model"});
    EXPECT_EQ(outcome.code, 0) << name;
    if (std::string(name) == "-") continue;
    EXPECT_EQ(run_in(folder.path(), {"get", "-q", "--", name, "model"}), outcome) << name;
  }
}

}  // namespace
}  // namespace kelp::input::quill::tool
