#include <string>
#include <utility>
#include <vector>

#include "quill-inp/command_line/arguments.hpp"
#include "quill-inp/command_line/common_options.hpp"
#include "quill-inp/command_line/reading_options.hpp"
#include "quill-inp/session/input_source.hpp"
#include "quill-inp/summary/input_difference.hpp"
#include "quill-inp/text/counted.hpp"
#include "quill-inp/text/terminal_text.hpp"
#include "quill-inp/verbs/verb.hpp"

namespace kelp::input::quill::tool {

namespace {

constexpr const char* example =
    "Example:\n"
    "  quill-inp diff old.qin new.qin\n"
    "\n"
    "Exit codes: 0 the inputs say the same; 1 they differ; 2 trouble. With --git, 0 for both.";

constexpr Option files{"FILE", "", "The two inputs"};
constexpr Option as_json{"--json", "", "Print the differences as JSON"};
constexpr Option for_git{"--git", "", "Take the arguments that git gives to a diff command"};

constexpr const char* no_file = "/dev/null";  // which git names for a file that does not exist

/// The two inputs, and the names by which they are shown.
struct Pair {
  std::string before;
  std::string after;
  std::string before_name;
  std::string after_name;
};

/// git-arguments = path old-file old-hash old-mode new-file new-hash new-mode [ more ]
Pair pair_of_git(const std::vector<std::string>& words) {
  const std::string& path = words[0];
  const std::string& before = words[1];
  const std::string& after = words[4];
  return {before, after, before == no_file ? before : "a/" + path,
          after == no_file ? after : "b/" + path};
}

Pair pair_of(const Session& session, const std::vector<std::string>& words) {
  if (words.size() != 2)
    throw UsageError("diff takes two files, here " + counted(words.size(), "file"));
  return {words[0], words[1], session.shown_name(words[0]), session.shown_name(words[1])};
}

/// Reads an input, and reports its warnings if they count; the name that git uses for no file gives
/// an empty input.
ExitCode read_one(Session& session, const std::string& argument, bool is_of_git, Warnings warnings,
                  QuillInput& input) {
  if (is_of_git && argument == no_file) return ExitCode::Done;
  return for_file(session, argument, [&] {
    ReadInput read = read_input(session, argument);
    const ExitCode code = code_of(read.read.result, warnings);
    if (code != ExitCode::Done) report_warnings(session.reporter(), read.name, read.read.result);
    input = std::move(read.read.result.input);
    return code;
  });
}

void print(Session& session, const Pair& pair, const InputDifferences& differences, bool is_json) {
  if (is_json) {
    write_difference_json(pair.before_name, pair.after_name, differences,
                          [&](std::string_view piece) { session.output().write(piece); });
  } else {
    session.output().write_shown(difference_text(pair.before_name, pair.after_name, differences));
  }
}

ExitCode diff(Session& session, const CLI::App& app) {
  constexpr std::size_t words_of_git = 7;
  const std::vector<std::string> words = values_of(app, files);
  const bool is_of_git = is_given(app, for_git);
  const Warnings warnings = read_warnings_option(app);
  if (is_of_git && warnings == Warnings::AreANo)
    throw UsageError(
        "--git and --strict cannot be used together: git stops at any exit code but 0");
  if (is_of_git && words.size() < words_of_git) {
    // The two sides of a merge that is not finished have no content to compare.
    if (words.size() != 1) throw UsageError("--git takes the arguments that git gives");
    session.output().write_shown("unmerged path " + shown_on_one_line(words[0]) + "\n");
    return ExitCode::Done;
  }
  const Pair pair = is_of_git ? pair_of_git(words) : pair_of(session, words);
  QuillInput before;
  QuillInput after;
  const ExitCode of_before = read_one(session, pair.before, is_of_git, warnings, before);
  const ExitCode of_after = read_one(session, pair.after, is_of_git, warnings, after);
  const ExitCode code = worse_of(of_before, of_after);
  if (code == ExitCode::Trouble) return code;
  const InputDifferences differences = find_differences(before, after);
  print(session, pair, differences, is_given(app, as_json));
  const bool is_same = differences.count == 0 || is_of_git;
  return worse_of(code, is_same ? ExitCode::Done : ExitCode::No);
}

}  // namespace

Verb add_diff(CLI::App& program) {
  CLI::App* app = add_verb(program, "diff", "Show how two inputs differ", example);
  add_arguments(*app, files);
  add_flag(*app, as_json);
  add_flag(*app, for_git);
  add_reading_options(*app);
  add_common_options(*app);
  return {app, diff};
}

}  // namespace kelp::input::quill::tool
