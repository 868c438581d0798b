#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "quill-inp/command_line/arguments.hpp"
#include "quill-inp/command_line/common_options.hpp"
#include "quill-inp/command_line/file_options.hpp"
#include "quill-inp/command_line/key_options.hpp"
#include "quill-inp/editing/ambiguity_notes.hpp"
#include "quill-inp/keys/ambiguity.hpp"
#include "quill-inp/keys/answer.hpp"
#include "quill-inp/session/input_source.hpp"
#include "quill-inp/verbs/verb.hpp"

namespace kelp::input::quill::tool {

namespace {

constexpr const char* example =
    "Example:\n"
    "  quill-inp get water.qin model opt.maxiter @charge\n"
    "  quill-inp get -k model -k @charge *.qin\n"
    "\n"
    "KEY is COMMAND, COMMAND.PARAMETER, COMMAND[N] or COMMAND[N].PARAMETER, where N counts\n"
    "from 0, or @charge, @multiplicity, @geometry, @files or @atoms. Put a backslash before a\n"
    "'.', '[' or ']' that is part of a name. A command or parameter without a value prints\n"
    "'flag'.";

constexpr const char* help_of_keys = "What to print, in this order";
constexpr Option with_filename{"--with-filename", "",
                               "Print 'FILE:' before every line, as for several files"};
constexpr Option no_filename{"--no-filename", "", "Never print 'FILE:' before a line"};

/// A key as it was typed and as it was read.
struct TypedKey {
  std::string text = {};
  Key key = {};
};

std::vector<TypedKey> parse_keys(const std::vector<std::string>& texts) {
  std::vector<TypedKey> keys;
  keys.reserve(texts.size());
  for (const std::string& text : texts) keys.push_back({text, parse_key(text)});
  return keys;
}

/// Appends every line of an answer, after a prefix.
void append_lines(std::string_view answer, const std::string& prefix, std::string& text) {
  for (;;) {
    const std::size_t end = answer.find('\n');
    text += prefix;
    text += answer.substr(0, end);
    text += '\n';
    if (end == std::string_view::npos) return;
    answer.remove_prefix(end + 1);
  }
}

/// Prints the answers to all keys, or nothing when one key has no answer: a script that reads the
/// lines can rely on their order.
ExitCode get_from_file(Session& session, const std::string& argument,
                       const std::vector<TypedKey>& keys, bool has_name) {
  const ReadInput input = read_input(session, argument);
  const QuillInput& document = input.read.result.input;
  report_warnings(session.reporter(), input.name, input.read.result);

  std::vector<Ambiguity> ambiguities;
  for (const TypedKey& key : keys) add_ambiguities(document, key.key, ambiguities);
  for (const Ambiguity& ambiguity : ambiguities) note_ambiguity(session, input, ambiguity);

  const std::string prefix = has_name ? input.name + ":" : "";
  std::string answers;
  ExitCode code = ExitCode::Done;
  for (const TypedKey& key : keys) {
    if (const std::optional<std::string> found = answer(document, key.key)) {
      append_lines(*found, prefix, answers);
    } else {
      session.reporter().note({input.name}, words(find_missing(document, key.text, key.key)));
      code = ExitCode::No;
    }
  }
  if (code == ExitCode::Done) session.output().write(answers);
  return code;
}

/// Whether to print names of files: as the user wants it, or if an answer may be of several files.
bool prints_names(const CLI::App& app, const ChosenFiles& files) {
  const bool always = is_given(app, with_filename);
  const bool never = is_given(app, no_filename);
  if (always && never)
    throw UsageError("--with-filename and --no-filename cannot be used together");
  return always || (!never && !files.is_one_by_name);
}

ExitCode get(Session& session, const CLI::App& app) {
  const FilesAndKeys given = read_files_and_keys(app);
  const std::vector<TypedKey> keys = parse_keys(given.keys);
  const BatchOptions options = read_batch_options(app);
  const ChosenFiles files = choose_files(session, read_file_choice(app, given.files));
  const bool has_name = prints_names(app, files);
  return for_each_file(session, files, options, [&](Session& one, const std::string& argument) {
    return get_from_file(one, argument, keys, has_name);
  });
}

}  // namespace

Verb add_get(CLI::App& program) {
  CLI::App* app = add_verb(program, "get", "Print the values of inputs", example);
  add_key_options(*app, help_of_keys);
  add_flag(*app, with_filename);
  add_flag(*app, no_filename);
  add_file_options(*app);
  add_common_options(*app);
  return {app, get};
}

}  // namespace kelp::input::quill::tool
