#include <string>
#include <string_view>

#include "quill-inp/command_line/arguments.hpp"
#include "quill-inp/command_line/common_options.hpp"
#include "quill-inp/formats/document_json.hpp"
#include "quill-inp/session/input_source.hpp"
#include "quill-inp/verbs/verb.hpp"

namespace kelp::input::quill::tool {

namespace {

constexpr Option file{"FILE", "", "The input"};

ExitCode print_json(Session& session, const std::string& argument) {
  const ReadInput input = read_input(session, argument);
  report_warnings(session.reporter(), input.name, input.read.result);
  write_document_json(input.read.result.input,
                      [&](std::string_view piece) { session.output().write(piece); });
  return ExitCode::Done;
}

ExitCode json(Session& session, const CLI::App& app) {
  const std::string argument = *value_of(app, file);
  return for_file(session, argument, [&] { return print_json(session, argument); });
}

}  // namespace

Verb add_json(CLI::App& program) {
  CLI::App* app = add_verb(program, "json", "Print an input as JSON, without loss",
                           "Example:\n  quill-inp json water.qin | jq .geometry.atoms");
  add_argument(*app, file);
  add_common_options(*app);
  return {app, json};
}

}  // namespace kelp::input::quill::tool
