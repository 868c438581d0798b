// For a thousand inputs and edits made from seeds: 'set -i', 'unset -i' and 'add -i' change the
// lines that they report and no others, the file then reads as what InputEditor makes of its
// document, and whatever is refused leaves the file as it was.

#include <gtest/gtest.h>
#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "kelp/input/quill/quill.hpp"
#include "quill-inp/run.hpp"
#include "support/comparison.hpp"
#include "support/printing.hpp"
#include "support/temporary_folder.hpp"
#include "tools/quill-inp/editing/random_edits.hpp"
#include "tools/quill-inp/support/files.hpp"

namespace kelp::input::quill::tool {
namespace {

/// The text of a line, which the reader keeps in addition to its meaning, does not count in the
/// comparison.
QuillInput without_lines(QuillInput input) {
  for (PostCommand& command : input.post_commands) {
    if (command.kind != PostCommandKind::Raw) command.raw_text.clear();
  }
  return input;
}

std::vector<std::string> lines_with_ends(const std::string& text) {
  std::vector<std::string> lines;
  for (std::size_t begin = 0; begin < text.size();) {
    const std::size_t newline = text.find('\n', begin);
    const std::size_t end = newline == std::string::npos ? text.size() : newline + 1;
    lines.push_back(text.substr(begin, end - begin));
    begin = end;
  }
  return lines;
}

/// The lines that the notes of a call speak of.
struct Reported {
  std::set<std::size_t> removed = {};  // numbers of old lines
  std::set<std::size_t> changed = {};  // numbers of new lines
  std::set<std::size_t> added = {};    // likewise
};

/// Reads "path:N: note: changed: text" and "path:N: note: removed, up to line M".
Reported read_notes(const std::string& path, const std::string& notes) {
  Reported reported;
  const std::map<std::string, std::set<std::size_t>*> kinds = {
      {"removed", &reported.removed}, {"changed", &reported.changed}, {"added", &reported.added}};
  std::istringstream stream(notes);
  for (std::string line; std::getline(stream, line);) {
    const std::string rest = line.substr(std::min(line.size(), path.size() + 1));
    std::size_t first = 0;
    char kind[8] = {};
    int length = 0;
    const bool has_line =
        std::sscanf(rest.c_str(), "%zu: note: %7[a-z]%n", &first, kind, &length) == 2;
    if (!has_line || kinds.count(kind) == 0) continue;
    std::size_t last = first;
    const char* const after = rest.c_str() + length;
    if (std::sscanf(after, ", up to line %zu", &last) != 1) {
      EXPECT_EQ(*after, ':') << line;
    }
    for (std::size_t number = first; number <= last; ++number) kinds.at(kind)->insert(number);
  }
  return reported;
}

std::string without_end(const std::string& line) {
  const std::size_t end = line.find_last_not_of("\r\n");
  return line.substr(0, end == std::string::npos ? 0 : end + 1);
}

bool has_end(const std::string& line) { return !line.empty() && line.back() == '\n'; }

/// Walks over both texts side by side: lines that are not reported are the same in both. Only the
/// end of a last line may come or go.
void expect_other_lines_untouched(const std::string& old_text, const std::string& new_text,
                                  const Reported& reported) {
  const std::vector<std::string> old_lines = lines_with_ends(old_text);
  const std::vector<std::string> new_lines = lines_with_ends(new_text);
  std::size_t old_at = 0;
  const auto skip_removed = [&] {
    while (reported.removed.count(old_at + 1) != 0) ++old_at;
  };
  for (std::size_t new_at = 0; new_at < new_lines.size(); ++new_at) {
    if (reported.added.count(new_at + 1) != 0) continue;
    skip_removed();
    ASSERT_LT(old_at, old_lines.size());
    if (reported.changed.count(new_at + 1) == 0) {
      EXPECT_EQ(without_end(new_lines[new_at]), without_end(old_lines[old_at]));
      if (has_end(new_lines[new_at]) && has_end(old_lines[old_at])) {
        EXPECT_EQ(new_lines[new_at], old_lines[old_at]);
      }
    } else {
      EXPECT_NE(new_lines[new_at], old_lines[old_at]);
    }
    ++old_at;
  }
  skip_removed();
  EXPECT_EQ(old_at, old_lines.size());
}

/// Runs the call in place in this process, and checks what it did to the file.
int run_and_check(const EditCall& call, const std::string& path, const std::string& text) {
  std::vector<std::string> arguments = call.arguments;
  arguments.insert(arguments.begin() + 1, {"-i", path});
  std::istringstream in;
  std::ostringstream out;
  std::ostringstream err;
  const int code = run(arguments, {in, out, err});
  EXPECT_EQ(out.str(), "");
  const std::string new_text = content_of(path);
  if (code != 0) {
    EXPECT_EQ(new_text, text);
    return code;
  }
  InputEditor editor(parse_string(text).input);
  for (const auto& edit : call.meaning) edit(editor);
  EXPECT_EQ(without_lines(parse_string(new_text).input), without_lines(editor.document()));
  expect_other_lines_untouched(text, new_text, read_notes(path, err.str()));
  return code;
}

TEST(EditsInPlace, ChangeTheReportedLinesAndReadBackAsWanted) {
  use_memory_for_temporary_files();
  const TemporaryFolder folder;
  std::map<int, int> codes;
  for (unsigned seed = 0; seed < 1000; ++seed) {
    Random random(seed);
    const std::string text = random_input(random);
    const EditCall call = random_call(random);
    const std::string path = folder.write("a.qin", text);
    ++codes[run_and_check(call, path, text)];
    if (testing::Test::HasFailure()) {
      FAIL() << "seed " << seed << ", " << testing::PrintToString(call.arguments) << ", on\n"
             << text;
    }
  }
  EXPECT_EQ(names_in(folder.path()), std::vector<std::string>{"a.qin"});
  // Each kind of outcome is there often enough to have been tested.
  EXPECT_GT(codes[0], 400);
  EXPECT_GT(codes[1], 50);
  EXPECT_GT(codes[2], 50);
}

}  // namespace
}  // namespace kelp::input::quill::tool
