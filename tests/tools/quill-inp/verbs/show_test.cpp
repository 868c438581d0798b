#include <gtest/gtest.h>

#include <string>

#include "support/temporary_folder.hpp"
#include "tools/quill-inp/support/call.hpp"

namespace kelp::input::quill::tool {
namespace {

const std::string two_opts_without_warnings =
    "two_opts.qin\n"
    "  task          opt(maxiter=50)\n"
    "  task          Opt(maxiter=70)\n"
    "  geometry      2 XYZ files\n"
    "  file          a b.xyz\n"
    "  file          c.xyz\n";

class Show : public testing::TestWithParam<Call> {};

const Call calls[] = {
    {"Quietly", {"show", "-q", "two_opts.qin"}, ended(0, two_opts_without_warnings, "")},
    {"WithWarnings",
     {"show", "two_opts.qin"},
     ended(0,
           two_opts_without_warnings +
               "  warning       line 2: ignored trailing text after QUILL header command\n"
               "  warning       line 6: ignored unrecognized QUILL post-processing line\n",
           "")},
    {"InColour",
     {"show", "--color=always", "bare.qin"},
     ended(0,
           "\x1B[1mbare.qin\x1B[m\n"
           "  \x1B[36mtask\x1B[m          sp\n"
           "  \x1B[36mgeometry\x1B[m      none\n"
           "  \x1B[1;35mwarning\x1B[m       No QUILL coordinate section found\n",
           "")},
    {"LinesInColour",
     {"show", "-q", "--lines", "--color=always", "two_opts.qin"},
     ended(0,
           "\x1B[1mtwo_opts.qin\x1B[m\n"
           "\x1B[36m1\x1B[m  command 1        #opt(maxiter=50)\n"
           "\x1B[36m2\x1B[m  command 2        #Opt(maxiter=70) and so on\n"
           "\x1B[36m3\x1B[m  blank\n"
           "\x1B[36m4\x1B[m  XYZ reference 1  XYZ a b.xyz\n"
           "\x1B[36m5\x1B[m  XYZ reference 2  XYZ c.xyz\n"
           "\x1B[36m6\x1B[m  \x1B[1;35mdropped\x1B[m          B 1 x\n",
           "")},
    {"TheColumnsOfTenLinesInColour",
     {"show", "-q", "--lines", "--color=always", "-"},
     ended(0,
           "\x1B[1m<stdin>\x1B[m\n"
           " \x1B[36m1\x1B[m  atom 1    H 0 0 0\n \x1B[36m2\x1B[m  raw text  a\n"
           " \x1B[36m3\x1B[m  blank\n \x1B[36m4\x1B[m  blank\n \x1B[36m5\x1B[m  blank\n"
           " \x1B[36m6\x1B[m  blank\n \x1B[36m7\x1B[m  blank\n \x1B[36m8\x1B[m  blank\n"
           " \x1B[36m9\x1B[m  blank\n\x1B[36m10\x1B[m  raw text  b\n",
           ""),
     "H 0 0 0\na\n\n\n\n\n\n\n\nb\n"},
    {"JsonIsData",
     {"show", "-q", "--json", "--color=always", "bare.qin"},
     ended(0,
           "{\"file\": \"bare.qin\", \"tasks\": [{\"name\": \"sp\", \"kind\": \"flag\"}], "
           "\"model\": null, \"device\": null, \"other_commands\": [], \"charge\": null, "
           "\"multiplicity\": null, \"geometry\": \"none\", \"atoms\": 0, \"formula\": \"\", "
           "\"composition\": [], \"files\": [], \"constraints\": [], \"scans\": [], "
           "\"post_files\": [], \"raw_lines\": [], \"warnings\": [{\"line\": null, \"message\": "
           "\"No QUILL coordinate section found\"}]}\n",
           "")},
};

TEST_P(Show, PrintsWhatIsWanted) { expect_outcome(GetParam()); }

INSTANTIATE_TEST_SUITE_P(Table, Show, testing::ValuesIn(calls),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(Show, IsColouredOnATerminalUnlessTheEnvironmentAsksForNone) {
  const TemporaryFolder folder;
  folder.write("a.qin", "#sp\n0 1\nHe 0 0 0\n");
  Request request;
  request.folder = folder.path();
  request.arguments = {"show", "a.qin"};
  request.out = Connection::Terminal;
  request.environment = {{"TERM", "xterm"}, {"NO_COLOR", ""}};
  EXPECT_EQ(run_program(request).out.substr(0, 12), "\x1B[1ma.qin\x1B[m");
  request.environment = {{"TERM", "xterm"}, {"NO_COLOR", "1"}};
  EXPECT_EQ(run_program(request).out.substr(0, 7), "a.qin\r\n");
}

}  // namespace
}  // namespace kelp::input::quill::tool
