#include <string>

#include "kelp/input/quill/reader.hpp"
#include "quill-inp/command_line/arguments.hpp"
#include "quill-inp/editing/print_document.hpp"
#include "quill-inp/formats/document_json.hpp"
#include "quill-inp/session/input_source.hpp"
#include "quill-inp/verbs/verb.hpp"

namespace kelp::input::quill::tool {

namespace {

ExitCode print_json(Session& session, const std::string& argument) {
  const InputSource source = read_input(session, argument);
  const ParseResult result = parse_string(source.content);
  report_warnings(session.reporter(), source.name, result);
  session.output().write(document_to_json(result.input));
  return ExitCode::Done;
}

}  // namespace

Verb add_json(CLI::App& program) {
  CLI::App* app = add_verb(program, "json", "Print an input as JSON, without loss",
                           "Example:\n  quill-inp json water.qin | jq .geometry.atoms");
  add_argument(*app, "FILE", "The input");
  add_common_options(*app);
  return {app, [=](Session& session) {
            const std::string argument = *value_of(*app, "FILE");
            return for_file(session, argument, [&] { return print_json(session, argument); });
          }};
}

}  // namespace kelp::input::quill::tool
