#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <csignal>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include "support/temporary_folder.hpp"
#include "tools/quill-inp/support/files.hpp"
#include "tools/quill-inp/support/program.hpp"

namespace kelp::input::quill::tool {
namespace {

Request call(const TemporaryFolder& folder, std::vector<std::string> arguments) {
  Request request;
  request.arguments = std::move(arguments);
  request.folder = folder.path();
  return request;
}

std::string output_failure(const std::string& reason) {
  return "quill-inp: error: cannot write to standard output: " + reason + "\n";
}

class EveryVerbThatPrints : public testing::TestWithParam<std::vector<std::string>> {};

TEST_P(EveryVerbThatPrints, TellsWhyItCannot) {
  const TemporaryFolder folder;
  folder.write("a.qin", water);
  folder.write("a.json", "{}");
  const std::pair<Connection, const char*> reasons[] = {
      {Connection::FullDevice, "No space left on device"},
      {Connection::BrokenPipe, "Broken pipe"},
      {Connection::Closed, "Bad file descriptor"},
  };
  for (const auto& [connection, reason] : reasons) {
    Request request = call(folder, GetParam());
    request.out = connection;
    EXPECT_EQ(run_program(request), ended(2, "", output_failure(reason)));
  }
}

using Arguments = std::vector<std::string>;

INSTANTIATE_TEST_SUITE_P(
    Verbs, EveryVerbThatPrints,
    testing::Values(Arguments{}, Arguments{"help"}, Arguments{"--help"}, Arguments{"--version"},
                    Arguments{"show", "--help"}, Arguments{"show", "a.qin"},
                    Arguments{"show", "--json", "a.qin"}, Arguments{"show", "--lines", "a.qin"},
                    Arguments{"fmt", "a.qin"}, Arguments{"get", "a.qin", "model"},
                    Arguments{"get", "--json", "a.qin", "model"},
                    Arguments{"set", "a.qin", "model=m2"},
                    Arguments{"set", "--diff", "a.qin", "model=m2"},
                    Arguments{"unset", "a.qin", "model"}, Arguments{"add", "a.qin", "--atom", "1"},
                    Arguments{"new", "--xyz", "a"}, Arguments{"json", "a.qin"}));

TEST(StandardOutput, OfALargeTextIsCheckedToo) {
  const TemporaryFolder folder;
  std::string text = "0 1\n";
  for (int i = 0; i < 20000; ++i) text += "He       0.000000      0.000000      1.000000\n";
  folder.write("a.qin", text);
  Request request = call(folder, {"fmt", "a.qin"});
  EXPECT_EQ(run_program(request).out, text);
  for (const Connection connection :
       {Connection::FullDevice, Connection::BrokenPipe, Connection::Closed}) {
    request.out = connection;
    const Outcome outcome = run_program(request);
    EXPECT_EQ(outcome.code, 2);
    EXPECT_EQ(outcome.err.rfind("quill-inp: error: cannot write to standard output", 0), 0U);
  }
}

TEST(StandardOutput, ThatIsNotNeededNeedNotBeThere) {
  const TemporaryFolder folder;
  folder.write("a.qin", water);
  Request request = call(folder, {"fmt", "--check", "a.qin"});
  for (const Connection connection :
       {Connection::FullDevice, Connection::BrokenPipe, Connection::Closed}) {
    request.out = connection;
    EXPECT_EQ(run_program(request), ended(0, "", ""));
  }
}

TEST(StandardError, ThatCannotBeWrittenChangesNothingElse) {
  const TemporaryFolder folder;
  Request request = call(folder, {"show", "none.qin", "-"});
  request.input = "0 1\n";
  for (const Connection connection :
       {Connection::FullDevice, Connection::BrokenPipe, Connection::Closed}) {
    request.err = connection;
    EXPECT_EQ(
        run_program(request),
        ended(2, "<stdin>\n  charge        0\n  multiplicity  1\n  geometry      none\n", ""));
  }
}

// Without care, the first file that is opened would get the number of the closed stream, and every
// message with it.
TEST(ClosedStreams, DoNotEndUpInTheFile) {
  const TemporaryFolder folder;
  const std::string path = folder.write("a.qin", water + std::string("B 1 x\n"));
  Request request = call(folder, {"set", "-i", "a.qin", "model=m2"});
  request.in = Connection::Closed;
  request.out = Connection::Closed;
  request.err = Connection::Closed;
  EXPECT_EQ(run_program(request), ended(0, "", ""));
  std::string expected = water + std::string("B 1 x\n");
  expected.replace(expected.find("m1"), 2, "m2");
  EXPECT_EQ(content_of(path), expected);
  EXPECT_EQ(names_in(folder.path()), std::vector<std::string>{"a.qin"});
}

TEST(StandardInput, ThatIsNotThereIsAnError) {
  const TemporaryFolder folder;
  Request request = call(folder, {"fmt", "-"});
  request.in = Connection::Closed;
  EXPECT_EQ(run_program(request),
            ended(2, "", "<stdin>: error: cannot be read: Bad file descriptor\n"));
}

TEST(StandardInput, ThatIsAFolderIsAnError) {
  const TemporaryFolder folder;
  EXPECT_EQ(run_shell(folder.path(), "quill-inp fmt - < ."),
            ended(2, "<stdin>: error: cannot be read: Is a directory\n", ""));
}

/// One row of a table: a command of the shell that lets standard output go into a file that is
/// read.
struct RedirectionRow {
  std::string name;
  std::string command;
  std::string refused;  // what the message begins with
};

class Redirection : public testing::TestWithParam<RedirectionRow> {};

const char* const also_output =
    "is also where standard output goes; write to another file, or use --in-place with fmt, set, "
    "unset or add\n";

TEST_P(Redirection, OntoTheInputIsRefused) {
  const TemporaryFolder folder;
  const std::string other = "#other\n";
  folder.write("a.qin", water);
  folder.write("b.qin", other);
  ASSERT_EQ(symlink("a.qin", folder.path("link").c_str()), 0);
  ASSERT_EQ(link(folder.path("a.qin").c_str(), folder.path("second").c_str()), 0);
  EXPECT_EQ(run_shell(folder.path(), GetParam().command),
            ended(2, GetParam().refused + also_output, ""));
  EXPECT_EQ(content_of(folder.path("a.qin")), water);
  EXPECT_EQ(content_of(folder.path("b.qin")), other);
}

INSTANTIATE_TEST_SUITE_P(
    Table, Redirection,
    testing::Values(
        RedirectionRow{"OfFmt", "quill-inp fmt a.qin >> a.qin", "a.qin: error: "},
        RedirectionRow{"OfFmtCheck", "quill-inp fmt --check a.qin >> a.qin", "a.qin: error: "},
        RedirectionRow{"OfFmtDiff", "quill-inp fmt --diff a.qin >> a.qin", "a.qin: error: "},
        RedirectionRow{"OfFmtInPlace", "quill-inp fmt -i a.qin >> a.qin", "a.qin: error: "},
        RedirectionRow{"OfSet", "quill-inp set a.qin model=m2 >> a.qin", "a.qin: error: "},
        RedirectionRow{"OfUnset", "quill-inp unset a.qin model >> a.qin", "a.qin: error: "},
        RedirectionRow{"OfAdd", "quill-inp add a.qin --bond 1,2 >> a.qin", "a.qin: error: "},
        RedirectionRow{"OfJson", "quill-inp json a.qin >> a.qin", "a.qin: error: "},
        RedirectionRow{"OfFromJson", "quill-inp from-json a.qin >> a.qin", "a.qin: error: "},
        RedirectionRow{"OfShow", "quill-inp show a.qin >> a.qin", "a.qin: error: "},
        RedirectionRow{"OfGet", "quill-inp get a.qin model >> a.qin", "a.qin: error: "},
        RedirectionRow{"OfNew", "quill-inp new --atoms a.qin >> a.qin", "a.qin: error: "},
        RedirectionRow{"OfStandardInput", "quill-inp fmt - < a.qin >> a.qin", "<stdin>: error: "},
        RedirectionRow{"OfStandardInputByName", "quill-inp fmt /dev/stdin < a.qin >> a.qin",
                       "/dev/stdin: error: "},
        RedirectionRow{"ToALink", "quill-inp fmt a.qin >> link", "a.qin: error: "},
        RedirectionRow{"FromALink", "quill-inp fmt link >> a.qin", "link: error: "},
        RedirectionRow{"ToAnotherName", "quill-inp fmt a.qin >> second", "a.qin: error: "},
        RedirectionRow{"AfterAnotherFile", "quill-inp fmt b.qin a.qin >> a.qin", "a.qin: error: "},
        RedirectionRow{"AfterAnotherFileOfStandardInput", "quill-inp show b.qin - < a.qin >> a.qin",
                       "<stdin>: error: "}),
    [](const auto& row) { return row.param.name; });

TEST(StandardOutput, ThatEmptiedTheInputIsAnError) {
  const TemporaryFolder folder;
  folder.write("a.qin", water);
  EXPECT_EQ(run_shell(folder.path(), "quill-inp set a.qin model=m2 > a.qin"),
            ended(2, std::string("a.qin: error: ") + also_output, ""));
  EXPECT_EQ(content_of(folder.path("a.qin")), "");
}

TEST(StandardOutput, ThatGoesIntoAnotherFileIsNotRefused) {
  const TemporaryFolder folder;
  folder.write("a.qin", water);
  const std::string commands =
      "set -e\n"
      "quill-inp fmt a.qin > b.qin\n"
      "quill-inp fmt none a.qin > c.qin || echo $?\n"
      "quill-inp fmt -q - < /dev/null > /dev/null\n";
  EXPECT_EQ(run_shell(folder.path(), commands),
            ended(0, "none: error: cannot be opened: No such file or directory\n2\n", ""));
  EXPECT_EQ(content_of(folder.path("b.qin")), water);
  EXPECT_EQ(content_of(folder.path("c.qin")), water);
}

TEST(Pipes, OfThreeCallsPassTheTextOn) {
  const TemporaryFolder folder;
  folder.write("a.qin", water);
  EXPECT_EQ(run_shell(folder.path(),
                      "quill-inp set a.qin model=m2 | quill-inp add - --bond 1,2 | quill-inp get - "
                      "model opt"),
            ended(0, "m2\n(maxiter=50, tight)\n", ""));
}

TEST(Pipes, GetDataAsItIsAndTextsForReadingEscaped) {
  const TemporaryFolder folder;
  const std::string name = "a\x1B.qin";
  folder.write(name, "#a=\x1B[2J\n0  1\n");
  EXPECT_EQ(run_in(folder.path(), {"get", name, "a"}), ended(0, "\x1B[2J\n", ""));
  EXPECT_EQ(run_in(folder.path(), {"fmt", name}), ended(0, "#a = \x1B[2J\n\n0 1\n", ""));
  EXPECT_EQ(
      run_in(folder.path(), {"show", name}),
      ended(0,
            "a\\x1b.qin\n  command       #a = \\x1b[2J\n  charge        0\n  multiplicity  1\n"
            "  geometry      none\n",
            ""));
  EXPECT_EQ(run_in(folder.path(), {"show", "--lines", name}),
            ended(0,
                  "a\\x1b.qin\n1  command 1                #a=\\x1b[2J\n"
                  "2  charge and multiplicity  0  1\n",
                  ""));
  EXPECT_EQ(
      run_in(folder.path(), {"set", "--diff", name, "@charge=1"}),
      ended(1, "--- a\\x1b.qin\n+++ a\\x1b.qin\n@@ -1,2 +1,2 @@\n #a=\x1B[2J\n-0  1\n+1 1\n", ""));
  EXPECT_EQ(run_in(folder.path(), {"set", "--diff", "--color=always", name, "@charge=1"}),
            ended(1,
                  "\x1B[31m--- a\\x1b.qin\x1B[m\n\x1B[32m+++ a\\x1b.qin\x1B[m\n"
                  "\x1B[36m@@ -1,2 +1,2 @@\x1B[m\n #a=\\x1b[2J\n\x1B[31m-0  1\x1B[m\n"
                  "\x1B[32m+1 1\x1B[m\n",
                  ""));
}

TEST(Terminals, GetColourAndNoByteThatTheyWouldObey) {
  const TemporaryFolder folder;
  folder.write("a.qin", "#a=\x1B[2J  b\n0  1\n");
  Request request = call(folder, {"fmt", "--diff", "a.qin", "none"});
  request.out = Connection::Terminal;
  request.err = Connection::Terminal;
  request.environment = {{"TERM", "xterm"}, {"NO_COLOR", ""}};
  // The terminal itself turns every line end into CR LF.
  EXPECT_EQ(run_program(request),
            ended(2,
                  "\x1B[31m--- a.qin\x1B[m\r\n\x1B[32m+++ a.qin\x1B[m\r\n"
                  "\x1B[36m@@ -1,2 +1,3 @@\x1B[m\r\n\x1B[31m-#a=\\x1b[2J  b\x1B[m\r\n"
                  "\x1B[31m-0  1\x1B[m\r\n\x1B[32m+#a = \\x1b[2J  b\x1B[m\r\n\x1B[32m+\x1B[m\r\n"
                  "\x1B[32m+0 1\x1B[m\r\n",
                  "none: \x1B[1;31merror:\x1B[m cannot be opened: No such file or directory\r\n"));
  request.arguments = {"get", "a.qin", "a"};
  EXPECT_EQ(run_program(request), ended(0, "\\x1b[2J  b\r\n", ""));
}

TEST(Terminals, GetNoColourWhereItIsNotWanted) {
  const TemporaryFolder folder;
  folder.write("a.qin", "0  1\n");
  Request request = call(folder, {"fmt", "--diff", "a.qin"});
  request.out = Connection::Terminal;
  const std::string plain = "--- a.qin\r\n+++ a.qin\r\n@@ -1 +1 @@\r\n-0  1\r\n+0 1\r\n";
  request.environment = {{"TERM", "xterm"}, {"NO_COLOR", "1"}};
  EXPECT_EQ(run_program(request).out, plain);
  request.environment = {{"TERM", "dumb"}, {"NO_COLOR", ""}};
  EXPECT_EQ(run_program(request).out, plain);
  request.environment = {{"TERM", "xterm"}, {"NO_COLOR", ""}};
  request.arguments.emplace_back("--color=never");
  EXPECT_EQ(run_program(request).out, plain);
  request.environment = {{"TERM", "xterm"}, {"NO_COLOR", "1"}};
  request.arguments.back() = "--color=always";
  EXPECT_NE(run_program(request).out, plain);
}

TEST(Terminals, ShowLineEndsThatChange) {
  const TemporaryFolder folder;
  folder.write("a.qin", "#sp\r\n\n0 1\nHe       0.000000      0.000000      0.000000\n");
  Request request = call(folder, {"fmt", "--diff", "a.qin"});
  const std::string note = "a.qin: note: only line ends change\n";
  const std::string context = " \n 0 1\n He       0.000000      0.000000      0.000000\n";
  const std::string head = "--- a.qin\n+++ a.qin\n@@ -1,4 +1,4 @@\n";
  EXPECT_EQ(run_program(request), ended(1, head + "-#sp\r\n+#sp\n" + context, note));
  request.out = Connection::Terminal;
  request.environment = {{"TERM", "xterm"}, {"NO_COLOR", "1"}};
  std::string shown;
  for (const char c : head + "-#sp\\r\n+#sp\n" + context) {
    if (c == '\n') shown += '\r';
    shown += c;
  }
  EXPECT_EQ(run_program(request), ended(1, shown, note));
}

TEST(Terminals, GetUsageErrorsAsTheyAreWanted) {
  const TemporaryFolder folder;
  folder.write("a.qin", "0  1\n");
  Request request = call(folder, {"get", "a.qin", "@x", "-q"});
  request.err = Connection::Terminal;
  request.environment = {{"TERM", "xterm"}, {"NO_COLOR", ""}};
  EXPECT_EQ(run_program(request).err, "quill-inp: \x1B[1;31merror:\x1B[m unknown key '@x'\r\n");
  request.arguments.emplace_back("--color=never");
  const std::string plain = "quill-inp: error: unknown key '@x'\r\n";
  EXPECT_EQ(run_program(request).err, plain);
  request.arguments.pop_back();
  request.environment = {{"TERM", "xterm"}, {"NO_COLOR", "1"}};
  EXPECT_EQ(run_program(request).err, plain);
}

std::string refusal(const std::string& name, const std::string& kind) {
  return name + ": error: is " + kind + ", not a regular file; use '-' to read standard input\n";
}

const std::string refusal_of_folder =
    "folder: error: is a folder; use --recursive to take the files in it\n";

TEST(FilesThatAreNotRegular, AreRefused) {
  const TemporaryFolder folder;
  folder.write("a.qin", "0 1\n");
  ASSERT_EQ(mkdir(folder.path("folder").c_str(), 0700), 0);
  ASSERT_EQ(mkfifo(folder.path("pipe").c_str(), 0600), 0);
  EXPECT_EQ(run_in(folder.path(), {"get", "folder", "@charge"}), ended(2, "", refusal_of_folder));
  EXPECT_EQ(run_in(folder.path(), {"get", "pipe", "@charge"}),
            ended(2, "", refusal("pipe", "a pipe")));
  EXPECT_EQ(run_in(folder.path(), {"get", "/dev/null", "@charge"}),
            ended(2, "", refusal("/dev/null", "a device")));
  EXPECT_EQ(run_in(folder.path(), {"fmt", "folder", "a.qin", "pipe"}),
            ended(2, "0 1\n", refusal_of_folder + refusal("pipe", "a pipe")));
}

std::string refusal_in_place(const std::string& name, const std::string& kind) {
  return name + ": error: is " + kind +
         ", and only a regular file can be changed in place; put the text into a file first, or "
         "have the result printed instead\n";
}

TEST(FilesThatAreNotRegular, AreNotChangedInPlace) {
  const TemporaryFolder folder;
  ASSERT_EQ(mkfifo(folder.path("pipe").c_str(), 0600), 0);
  EXPECT_EQ(run_in(folder.path(), {"fmt", "-i", "pipe"}),
            ended(2, "", refusal_in_place("pipe", "a pipe")));
  EXPECT_EQ(run_in(folder.path(), {"lint", "-q", "--fix", "pipe"}),
            ended(2, "", refusal_in_place("pipe", "a pipe")));
  EXPECT_EQ(run_in(folder.path(), {"set", "-i", "/dev/null", "model=m2"}),
            ended(2, "", refusal_in_place("/dev/null", "a device")));
  // A socket cannot even be opened.
  EXPECT_EQ(
      run_shell(folder.path(),
                "/usr/bin/python3 -c \"import socket; socket.socket(socket.AF_UNIX).bind('s')\";"
                " quill-inp fmt -i s"),
      ended(2, refusal_in_place("s", "a socket"), ""));
}

TEST(PipesThatAProgramWritesTo, AreRead) {
  const TemporaryFolder folder;
  folder.write("a.qin", "0 1\n");
  EXPECT_EQ(run_in(folder.path(), {"get", "/dev/stdin", "@charge"}, "2 1\n"), ended(0, "2\n", ""));
  EXPECT_EQ(run_in(folder.path(), {"fmt", "/dev/fd/0", "a.qin"}, "0 2\n"),
            ended(0, "0 2\n0 1\n", ""));
  EXPECT_EQ(run_in(folder.path(), {"get", "--max-size=3", "/dev/stdin", "@charge"}, "2 1\n"),
            ended(2, "", "/dev/stdin: error: is larger than 3 bytes, see --max-size\n"));
  const std::string slow =
      "bash -c 'quill-inp get <(sleep 0.1; printf \"2 \"; sleep 0.1; echo 1) @charge'";
  EXPECT_EQ(run_shell(folder.path(), slow), ended(0, "2\n", ""));
}

TEST(PipesThatAProgramWritesTo, CannotBeChangedInPlace) {
  const TemporaryFolder folder;
  EXPECT_EQ(run_in(folder.path(), {"fmt", "-i", "/dev/fd/0"}, "0 1\n"),
            ended(2, "", refusal_in_place("/dev/fd/0", "a pipe")));
}

TEST(UnreadableFiles, AreReportedAndTheOthersProcessed) {
  const TemporaryFolder folder;
  folder.write("a.qin", "0 1\n");
  chmod(folder.write("secret.qin", "0 2\n").c_str(), 0);
  Request request = call(folder, {"fmt", "secret.qin", "a.qin", "a.qin/b"});
  request.without_privileges = true;
  EXPECT_EQ(run_program(request), ended(2, "0 1\n",
                                        "secret.qin: error: cannot be opened: Permission denied\n"
                                        "a.qin/b: error: cannot be opened: Not a directory\n"));
}

}  // namespace
}  // namespace kelp::input::quill::tool
