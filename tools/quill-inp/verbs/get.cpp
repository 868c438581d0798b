#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "quill-inp/command_line/arguments.hpp"
#include "quill-inp/command_line/common_options.hpp"
#include "quill-inp/command_line/file_options.hpp"
#include "quill-inp/command_line/key_options.hpp"
#include "quill-inp/command_line/reading_options.hpp"
#include "quill-inp/editing/ambiguity_notes.hpp"
#include "quill-inp/formats/json_writer.hpp"
#include "quill-inp/keys/ambiguity.hpp"
#include "quill-inp/keys/answer.hpp"
#include "quill-inp/keys/answer_json.hpp"
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
    "from 0; @commands[N] for the N-th of all commands; @keys for all of these; @charge,\n"
    "@multiplicity, @geometry, @files, @atoms, @formula or @natoms; or @bonds, @angles,\n"
    "@dihedrals, @atom_constraints, @scans, @post_files or @raw, and @bond[N] and so on for\n"
    "one of them. Put a backslash before a '.', '[' or ']' that is part of a name. A command or\n"
    "parameter without a value prints 'flag'.";

constexpr const char* help_of_keys = "What to print, in this order";
constexpr Option with_filename{"--with-filename", "",
                               "Print 'FILE:' before every line, as for several files"};
constexpr Option no_filename{"--no-filename", "", "Never print 'FILE:' before a line"};

constexpr Option as_json{"--json", "", "Print the answers as JSON, one line per file"};
constexpr Option default_text{"--default", "TEXT", "Print this for a key without an answer"};

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

/// What to print of every file, and in what form.
struct Question {
  std::vector<TypedKey> keys = {};
  std::optional<std::string> default_text = std::nullopt;
  bool as_json = false;
  Warnings warnings = Warnings::DoNotCount;
  bool has_name = false;
};

void note_missing(Session& session, const ReadInput& input, const TypedKey& key) {
  const MissingAnswer missing = find_missing(input.read.result.input, key.text, key.key);
  session.reporter().note({input.name}, words(missing));
}

/// Prints the answers to all keys, or nothing when one key has no answer: a script that reads the
/// lines can rely on their order.
ExitCode print_lines(Session& session, const ReadInput& input, const Question& question) {
  const std::string prefix = question.has_name ? input.name + ":" : "";
  std::string answers;
  ExitCode code = ExitCode::Done;
  for (const TypedKey& key : question.keys) {
    std::optional<std::string> found = answer(input.read.result.input, key.key);
    if (!found) found = question.default_text;
    if (found) {
      append_lines(*found, prefix, answers);
    } else {
      note_missing(session, input, key);
      code = ExitCode::No;
    }
  }
  if (code == ExitCode::Done) session.output().write(answers);
  return code;
}

/// Prints the answers to all keys, each with its key. A missing answer is printed as missing.
ExitCode print_json(Session& session, const ReadInput& input, const Question& question) {
  JsonWriter json([&](std::string_view piece) { session.output().write(piece); });
  json.begin_object(JsonWriter::Layout::OneLine);
  json.member("file").text(input.name);
  json.member("answers").begin_list(JsonWriter::Layout::OneLine);
  ExitCode code = ExitCode::Done;
  for (const TypedKey& key : question.keys) {
    json.begin_object(JsonWriter::Layout::OneLine);
    json.member("key").text(key.text);
    if (!write_answer(json, input.read.result.input, key.key)) {
      json.member("missing").truth(true);
      if (question.default_text) {
        json.member("value").text(*question.default_text);
      } else {
        note_missing(session, input, key);
        code = ExitCode::No;
      }
    }
    json.end_object();
  }
  json.end_list();
  json.end_object();
  json.finish();
  return code;
}

ExitCode get_from_file(Session& session, const std::string& argument, const Question& question) {
  ReadInput input = read_input(session, argument);
  report_warnings(session.reporter(), input.name, input.read.result);
  std::vector<Ambiguity> ambiguities;
  for (const TypedKey& key : question.keys)
    add_ambiguities(input.read.result.input, key.key, ambiguities);
  for (const Ambiguity& ambiguity : ambiguities) note_ambiguity(session, input, ambiguity);
  forget_lines(input);
  const ExitCode code = question.as_json ? print_json(session, input, question)
                                         : print_lines(session, input, question);
  return worse_of(code, code_of(input.read.result, question.warnings));
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
  Question question{parse_keys(given.keys), value_of(app, default_text), is_given(app, as_json),
                    read_warnings_option(app)};
  const BatchOptions options = read_batch_options(app);
  const ChosenFiles files = choose_files(session, read_file_choice(app, given.files));
  question.has_name = prints_names(app, files);
  return for_each_file(session, files, options, [&](Session& one, const std::string& argument) {
    return get_from_file(one, argument, question);
  });
}

}  // namespace

Verb add_get(CLI::App& program) {
  CLI::App* app = add_verb(program, "get", "Print the values of inputs", example);
  add_key_options(*app, help_of_keys);
  add_flag(*app, as_json);
  add_value(*app, default_text);
  add_flag(*app, with_filename);
  add_flag(*app, no_filename);
  add_reading_options(*app);
  add_file_options(*app);
  add_common_options(*app);
  return {app, get};
}

}  // namespace kelp::input::quill::tool
