#include <string>
#include <string_view>

#include "quill-inp/command_line/arguments.hpp"
#include "quill-inp/command_line/common_options.hpp"
#include "quill-inp/command_line/file_options.hpp"
#include "quill-inp/command_line/reading_options.hpp"
#include "quill-inp/formats/document_json.hpp"
#include "quill-inp/session/input_source.hpp"
#include "quill-inp/verbs/verb.hpp"

namespace kelp::input::quill::tool {

namespace {

constexpr Option files{"FILE", "", "The inputs"};

ExitCode print_json(Session& session, const std::string& argument, Warnings warnings) {
  const ReadDocument input = read_document(session, argument);
  report_warnings(session.reporter(), input.name, input.result);
  write_document_json(input.result.input,
                      [&](std::string_view piece) { session.output().write(piece); });
  return code_of(input.result, warnings);
}

ExitCode json(Session& session, const CLI::App& app) {
  const Warnings warnings = read_warnings_option(app);
  return for_chosen_files(session, app, values_of(app, files),
                          [&](Session& one, const std::string& argument) {
                            return print_json(one, argument, warnings);
                          });
}

}  // namespace

Verb add_json(CLI::App& program) {
  CLI::App* app = add_verb(program, "json", "Print inputs as JSON, without loss",
                           "Example:\n  quill-inp json water.qin | jq .geometry.atoms");
  add_files(*app, files);
  add_reading_options(*app);
  add_file_options(*app);
  add_common_options(*app);
  return {app, json};
}

}  // namespace kelp::input::quill::tool
