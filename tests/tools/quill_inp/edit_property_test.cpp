// For a thousand inputs and edits made from seeds: 'set -i', 'unset -i' and 'add -i' change the
// lines that they report and no others, the file then reads as what InputEditor makes of its
// document, and whatever is refused leaves the file as it was.

#include <gtest/gtest.h>
#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <functional>
#include <map>
#include <random>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "files.hpp"
#include "kelp/input/quill/quill.hpp"
#include "quill-inp/run.hpp"
#include "support/comparison.hpp"
#include "support/printing.hpp"
#include "support/temporary_folder.hpp"

namespace kelp::input::quill::tool {
namespace {

/// Makes inputs and edits; the same ones for the same seed on every machine.
class Random {
 public:
  explicit Random(unsigned seed) : engine_(seed) {}

  std::size_t below(std::size_t limit) { return engine_() % limit; }
  bool one_in(std::size_t count) { return below(count) == 0; }

  template <typename T>
  const T& any_of(const std::vector<T>& values) {
    return values[below(values.size())];
  }

 private:
  std::mt19937 engine_;
};

const std::vector<std::string> command_names = {"opt",      "OPT", "freq", "model",
                                                "##Device", "a.b", ""};
const std::vector<std::string> parameter_names = {"maxiter", "MaxIter", "tight", "a.b", "x y"};
const std::vector<std::string> values = {"50",       "m1",       "a,b",  " blanks ", "",
                                         "'q'",      "\"q\"",    "it's", "x(y)",     "a=b",
                                         "\xC3\xA4", "\xFF\x1B", "')\"", "#"};

std::string random_header_line(Random& random) {
  const std::string name = random.any_of(command_names);
  const std::string blank = random.one_in(3) ? " " : "";
  switch (random.below(4)) {
    case 0:
      return blank + "#" + blank + name;
    case 1:
      return "#" + name + blank + "=" + blank + random.any_of(values);
    case 2:
      return "#" + name + blank + "(" + random.any_of(parameter_names) + "=" + blank +
             random.any_of(values) + "," + blank + random.any_of(parameter_names) + ")" +
             (random.one_in(8) ? " and more" : "");
    default:
      return "#" + name + "(" + random.any_of(parameter_names) + (random.one_in(4) ? "" : ")");
  }
}

std::string random_coordinate_line(Random& random, std::size_t form) {
  if (form == 1)
    return random.one_in(5) ? "XYZ" : "xyz  some file " + std::to_string(random.below(9));
  return random.any_of<std::string>({"H", "he", "C", "D", "B"}) + "  " +
         random.any_of<std::string>({"0", "1.5", "-0.123456789", "1d2"}) + " 0 " +
         std::to_string(random.below(5));
}

std::string random_post_line(Random& random) {
  return random.any_of<std::string>({"B 1 2", "b  1  2", "A 1 2 3", "D 1 2 3 4", "C x",
                                     "S 1 2 1.5 10", "POST a b", "free text", "#late", "0 1",
                                     "XYZ late", "B 1 2 3"});
}

std::string random_input(Random& random) {
  std::vector<std::string> lines;
  const auto add = [&](const std::string& line) {
    lines.push_back(line);
    if (random.one_in(6)) lines.push_back(random.one_in(2) ? "" : " \t");
  };
  for (std::size_t i = random.below(5); i > 0; --i) add(random_header_line(random));
  if (!random.one_in(4)) add(random.one_in(2) ? "0 1" : " -1\t 2 ");
  const std::size_t form = random.below(4);
  if (form == 2) add("XYZTRAJ path.xyz");
  if (form < 2) {
    for (std::size_t i = 1 + random.below(4); i > 0; --i) add(random_coordinate_line(random, form));
  }
  for (std::size_t i = random.below(4); i > 0; --i) add(random_post_line(random));

  const std::string line_end = random.one_in(3) ? "\r\n" : "\n";
  std::string text;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const bool ends = i + 1 < lines.size() || !random.one_in(3);
    text += lines[i] + (ends ? line_end : "");
  }
  return text;
}

std::string escaped(const std::string& name) {
  std::string text;
  for (const char c : name) {
    if (std::string_view(".[]=@\\").find(c) != std::string_view::npos) text += '\\';
    text += c;
  }
  return text.empty() ? "#" : text;
}

/// A call of the program, and what it does to a document, said with the library's editor.
struct EditCall {
  std::vector<std::string> arguments = {};
  std::vector<std::function<void(InputEditor&)>> meaning = {};
};

EditCall random_set(Random& random) {
  EditCall call{{"set"}, {}};
  for (std::size_t i = 1 + random.below(3); i > 0; --i) {
    const std::string name = random.any_of(command_names);
    const std::string value = random.any_of(values);
    // One leading "#" of a name on the command line is that of the line.
    const std::string stored = name.substr(0, 1) == "#" ? name.substr(1) : name;
    if (random.one_in(3)) {
      call.arguments.push_back(escaped(name) + "=" + value);
      call.meaning.emplace_back([=](InputEditor& editor) { editor.set_assignment(stored, value); });
    } else {
      const std::string parameter = random.any_of(parameter_names);
      call.arguments.push_back(escaped(name) + "." + escaped(parameter) + "=" + value);
      call.meaning.emplace_back(
          [=](InputEditor& editor) { editor.set_parameter(stored, parameter, value); });
    }
  }
  if (random.one_in(4)) {
    call.arguments.push_back("@charge=" + std::to_string(random.below(3)));
    const int charge = call.arguments.back().back() - '0';
    call.meaning.emplace_back([=](InputEditor& editor) {
      editor.set_charge_and_multiplicity(charge, editor.document().geometry.multiplicity);
    });
  }
  if (random.one_in(5)) {
    call.arguments.insert(call.arguments.end(), {"--xyz", "a b", "c"});
    call.meaning.emplace_back([](InputEditor& editor) { editor.set_xyz_files({"a b", "c"}); });
  }
  return call;
}

EditCall random_unset(Random& random) {
  const std::string name = random.any_of(command_names);
  const std::string stored = name.substr(0, 1) == "#" ? name.substr(1) : name;
  switch (random.below(3)) {
    case 0:
      return {{"unset", escaped(name)},
              {[=](InputEditor& editor) { editor.remove_command(stored); }}};
    case 1: {
      const std::string parameter = random.any_of(parameter_names);
      return {{"unset", escaped(name) + "." + escaped(parameter)},
              {[=](InputEditor& editor) { editor.remove_parameter(stored, parameter); }}};
    }
    default:
      return {{"unset", "@charge"},
              {[](InputEditor& editor) { editor.clear_charge_and_multiplicity(); }}};
  }
}

EditCall random_add(Random& random) {
  EditCall call{{"add"}, {}};
  for (std::size_t i = 1 + random.below(3); i > 0; --i) {
    switch (random.below(4)) {
      case 0:
        call.arguments.insert(call.arguments.end(), {"--bond", "3,4"});
        call.meaning.emplace_back([](InputEditor& editor) { editor.add_bond_constraint(3, 4); });
        break;
      case 1:
        call.arguments.insert(call.arguments.end(), {"--angle", "1,2,3"});
        call.meaning.emplace_back(
            [](InputEditor& editor) { editor.add_angle_constraint(1, 2, 3); });
        break;
      case 2:
        call.arguments.insert(call.arguments.end(), {"--scan", "1,2:2.5:7"});
        call.meaning.emplace_back([](InputEditor& editor) { editor.add_scan({1, 2}, 2.5, 7); });
        break;
      default: {
        const std::string text = random.any_of<std::string>({"text", "B 1 2", "0 1", "[x]", " a"});
        call.arguments.insert(call.arguments.end(), {"--raw", text});
        call.meaning.emplace_back([=](InputEditor& editor) {
          editor.add_post_command(PostCommand{PostCommandKind::Raw, {}, {}, {}, "", text});
        });
      }
    }
  }
  return call;
}

EditCall random_call(Random& random) {
  EditCall call = random.one_in(4)   ? random_unset(random)
                  : random.one_in(3) ? random_add(random)
                                     : random_set(random);
  return call;
}

/// What the reader keeps of a line beside its meaning is not part of what was meant.
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
    if (std::sscanf(rest.c_str(), "%zu: note: %7[a-z]%n", &first, kind, &length) != 2) continue;
    std::size_t last = first;
    const char* const behind = rest.c_str() + length;
    if (std::sscanf(behind, ", up to line %zu", &last) != 1) {
      EXPECT_EQ(*behind, ':') << line;
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
  const int code = run(arguments, in, out, err);
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

TEST(EditsInPlace, ChangeTheReportedLinesAndReadBackAsMeant) {
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
