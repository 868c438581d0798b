#include <optional>
#include <string>
#include <vector>

#include "quill-inp/command_line/arguments.hpp"
#include "quill-inp/command_line/common_options.hpp"
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
    "\n"
    "KEY is COMMAND, COMMAND.PARAMETER, COMMAND[N] or COMMAND[N].PARAMETER, where N counts\n"
    "from 0, or @charge, @multiplicity, @geometry, @files or @atoms. Put a backslash before a\n"
    "'.', '[' or ']' that is part of a name. A command or parameter without a value prints\n"
    "'flag'.";

constexpr Option file{"FILE", "", "The input"};
constexpr Option keys{"KEY", "", "What to print, in this order"};

/// Prints the answers to all keys, or nothing when one key has no answer: a script that reads the
/// lines can rely on their order.
ExitCode get_from_file(Session& session, const std::string& argument,
                       const std::vector<std::string>& texts) {
  std::vector<Key> parsed;
  parsed.reserve(texts.size());
  for (const std::string& text : texts) parsed.push_back(parse_key(text));
  const ReadInput input = read_input(session, argument);
  const QuillInput& document = input.read.result.input;
  report_warnings(session.reporter(), input.name, input.read.result);

  std::vector<Ambiguity> ambiguities;
  for (const Key& key : parsed) add_ambiguities(document, key, ambiguities);
  for (const Ambiguity& ambiguity : ambiguities) note_ambiguity(session, input, ambiguity);

  std::string answers;
  ExitCode code = ExitCode::Done;
  for (std::size_t i = 0; i < parsed.size(); ++i) {
    if (const std::optional<std::string> found = answer(document, parsed[i])) {
      answers += *found + "\n";
    } else {
      session.reporter().note({input.name}, words(find_missing(document, texts[i], parsed[i])));
      code = ExitCode::No;
    }
  }
  if (code == ExitCode::Done) session.output().write(answers);
  return code;
}

ExitCode get(Session& session, const CLI::App& app) {
  const std::string argument = *value_of(app, file);
  return for_file(session, argument,
                  [&] { return get_from_file(session, argument, values_of(app, keys)); });
}

}  // namespace

Verb add_get(CLI::App& program) {
  CLI::App* app = add_verb(program, "get", "Print the values of an input", example);
  add_argument(*app, file);
  add_arguments(*app, keys);
  add_common_options(*app);
  return {app, get};
}

}  // namespace kelp::input::quill::tool
