#include <optional>
#include <string>
#include <vector>

#include "quill-inp/command_line/arguments.hpp"
#include "quill-inp/keys/answer.hpp"
#include "quill-inp/session/input_source.hpp"
#include "quill-inp/verbs/verb.hpp"

namespace kelp::input::quill::tool {

namespace {

constexpr const char* example =
    "Example:\n"
    "  quill-inp get water.qin model opt.maxiter @charge\n"
    "\n"
    "KEY is COMMAND, COMMAND.PARAMETER, COMMAND[N] or COMMAND[N].PARAMETER, N counted from 0,\n"
    "or @charge, @multiplicity, @geometry, @files or @atoms. A backslash takes the meaning from\n"
    "a '.', '[' or ']' in a name. A command or parameter without a value prints 'flag'.";

/// Prints the answers to all keys, or nothing when one has none: a script that reads the lines can
/// rely on which of them is which.
ExitCode get(Session& session, const std::string& argument, const std::vector<std::string>& texts) {
  std::vector<Key> keys;
  keys.reserve(texts.size());
  for (const std::string& text : texts) keys.push_back(parse_key(text));
  const InputSource source = read_input(session, argument);
  const ParseResult result = parse_string(source.content);
  report_warnings(session.reporter(), source.name, result);

  std::string answers;
  ExitCode code = ExitCode::Done;
  for (std::size_t i = 0; i < keys.size(); ++i) {
    if (const std::optional<std::string> found = answer(result.input, keys[i])) {
      answers += *found + "\n";
    } else {
      session.reporter().note({source.name}, explain_no_answer(result.input, texts[i], keys[i]));
      code = ExitCode::No;
    }
  }
  if (code == ExitCode::Done) session.output().write(answers);
  return code;
}

}  // namespace

Verb add_get(CLI::App& program) {
  CLI::App* app = add_verb(program, "get", "Print what an input says under a key", example);
  add_argument(*app, "FILE", "The input");
  add_arguments(*app, "KEY", "What to print, one after another");
  add_common_options(*app);
  return {app, [=](Session& session) {
            const std::string argument = *value_of(*app, "FILE");
            return for_file(session, argument,
                            [&] { return get(session, argument, values_of(*app, "KEY")); });
          }};
}

}  // namespace kelp::input::quill::tool
