#include <string>
#include <utility>

#include "quill-inp/command_line/arguments.hpp"
#include "quill-inp/command_line/common_options.hpp"
#include "quill-inp/editing/print_document.hpp"
#include "quill-inp/formats/document_json.hpp"
#include "quill-inp/session/input_source.hpp"
#include "quill-inp/verbs/verb.hpp"

namespace kelp::input::quill::tool {

namespace {

constexpr Option file{"FILE", "", "The JSON text"};

ExitCode from_json(Session& session, const CLI::App& app) {
  const std::string argument = *value_of(app, file);
  const LossPolicy policy = read_loss_policy(app);
  const OutputFile output = read_output_file(app);
  return for_file(session, argument, [&] {
    InputSource source = read_source(session, argument);
    // The text, which may be large, is freed before the next one is made.
    const QuillInput document = document_from_json(std::exchange(source.content, std::string()));
    return print_document(session, source.name, document, policy, output);
  });
}

}  // namespace

Verb add_from_json(CLI::App& program) {
  CLI::App* app = add_verb(program, "from-json", "Print a JSON text as a QUILL input",
                           "Example:\n  quill-inp json water.qin | quill-inp from-json -");
  add_argument(*app, file);
  add_output_options(*app);
  add_loss_options(*app);
  add_common_options(*app);
  return {app, from_json};
}

}  // namespace kelp::input::quill::tool
