// Files that are not inputs, such as there may be in the folder of a job: no verb that writes
// changes them unless it is told to.

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "support/temporary_folder.hpp"
#include "tools/quill-inp/support/files.hpp"
#include "tools/quill-inp/support/program.hpp"

namespace kelp::input::quill::tool {
namespace {

using namespace std::string_view_literals;
using Words = std::vector<std::string>;

const std::string unlike = "does not look like a QUILL input: ";
const std::string no_sections = unlike + "it has no header line and no coordinates";

struct Row {
  std::string_view name;
  std::string_view text;
  std::string complaint;  // with the line, if it is about one
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }

const Row rows[] = {
    {"Python", "import os\n\nfor name in os.listdir():\n    print(name)\n",
     ": error: refused: " + no_sections},
    {"Makefile", "all: job.out\n\njob.out: job.qin\n\trun $<\n",
     ": error: refused: " + no_sections},
    {"Yaml", "job:\n  model: m1\n  steps:\n    - opt\n", ": error: refused: " + no_sections},
    {"BatchScript", "#!/bin/sh\n#SBATCH --nodes=2\nsrun quill job.qin\n",
     ":1: error: refused: " + unlike + "its first line is that of a script"},
    {"Picture", "\x89PNG\r\n\x1A\n\0\0\0\rIHDR"sv,
     ":3: error: refused: " + unlike + "it has a NUL byte"},
    {"Program",
     "\x7F"
     "ELF\2\1\1\0\0\0"sv,
     ":1: error: refused: " + unlike + "it has a NUL byte"},
    {"XyzFile", "1\n\nHe 0 0 0\n", ": error: refused: " + no_sections},
    {"InputWithAByteOrderMark", "\xEF\xBB\xBF#sp\n\n0 1\nHe 0 0 0\n",
     ":1: error: refused: begins with a byte order mark, which the reader takes for text; 'tail -c "
     "+4 FILE' prints the text without it"},
    {"InputInUtf16", "\xFF\xFE#\0s\0p\0\n\0"sv,
     ":1: error: refused: is in UTF-16, which the reader cannot read; 'iconv -f UTF-16 -t UTF-8 "
     "FILE' prints it as UTF-8"},
};

const Words writing_calls[] = {
    {"fmt", "-i", "a"},
    {"fmt", "--check", "a"},
    {"fmt", "a"},
    {"set", "-i", "a", "b=c"},
    {"set", "--diff", "a", "b=c"},
    {"unset", "-i", "a", "b"},
    {"add", "-i", "a", "--raw", "b"},
};

class ForeignText : public testing::TestWithParam<Row> {};

TEST_P(ForeignText, IsRefusedByEveryVerbThatWrites) {
  const std::string text(GetParam().text);
  const TemporaryFolder folder;
  folder.write("a", text);
  for (const Words& arguments : writing_calls) {
    EXPECT_EQ(run_in(folder.path(), arguments),
              ended(2, "", "a" + GetParam().complaint + "; use --allow-loss to write it anyway\n"))
        << arguments[0];
    EXPECT_EQ(content_of(folder.path("a")), text) << arguments[0];
  }
}

INSTANTIATE_TEST_SUITE_P(Table, ForeignText, testing::ValuesIn(rows),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(ForeignText, IsWrittenWithAWarningIfTheUserInsists) {
  const TemporaryFolder folder;
  folder.write("a", "some text\n");
  EXPECT_EQ(run_in(folder.path(), {"set", "-i", "--allow-loss", "a", "sp=b"}),
            ended(0, "",
                  "a: warning: " + no_sections +
                      "\na: warning: No QUILL coordinate section found\n"
                      "a:1: note: added, up to line 2\n"));
  EXPECT_EQ(content_of(folder.path("a")), "#sp = b\n\nsome text\n");
}

TEST(ForeignText, IsNotAnEmptyFile) {
  const TemporaryFolder folder;
  folder.write("a", "");
  EXPECT_EQ(run_in(folder.path(), {"set", "-i", "-q", "a", "sp=b"}), ended(0, "", ""));
  EXPECT_EQ(content_of(folder.path("a")), "#sp = b\n");
}

TEST(ForeignText, BecomesAnInputByTheCureInTheMessage) {
  const TemporaryFolder folder;
  const std::string input = "#sp\n\n0 1\nHe 0 0 0\n";
  folder.write("marked", "\xEF\xBB\xBF" + input);
  folder.write("input", input);
  run_shell(folder.path(), "tail -c +4 marked > 8; iconv -f UTF-8 -t UTF-16 input > wide");
  run_shell(folder.path(), "iconv -f UTF-16 -t UTF-8 wide > 16");
  run_shell(folder.path(), "iconv -f UTF-8 -t UTF-16LE input | iconv -f UTF-16LE -t UTF-8 > 16le");
  for (const char* cured : {"8", "16", "16le"}) {
    EXPECT_EQ(content_of(folder.path(cured)), input) << cured;
    EXPECT_EQ(run_in(folder.path(), {"set", "-i", "-q", cured, "sp=b"}), ended(0, "", "")) << cured;
  }
}

TEST(InvisibleCharacters, AreShownInLines) {
  const TemporaryFolder folder;
  folder.write("a", "\xEF\xBB\xBF#sp\n0 1\nHe\xE2\x80\x8B 0 0\xC2\xA0 0\n");
  EXPECT_EQ(run_in(folder.path(), {"show", "-q", "--lines", "a"}),
            ended(0,
                  "a\n1  raw text  \\ufeff#sp\n2  raw text  0 1\n"
                  "3  raw text  He\\u200b 0 0\\u00a0 0\n",
                  ""));
}

}  // namespace
}  // namespace kelp::input::quill::tool
