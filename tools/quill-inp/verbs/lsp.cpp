#include <CLI/App.hpp>

#include "language_server/run.hpp"
#include "quill-inp/command_line/arguments.hpp"
#include "quill-inp/command_line/common_options.hpp"
#include "quill-inp/process/terminal.hpp"
#include "quill-inp/verbs/verb.hpp"

namespace kelp::input::quill::tool {

namespace {

constexpr const char* example =
    "An editor starts this verb and speaks the Language Server Protocol 3.17 with it, over\n"
    "standard input and output. Exit codes: 0 after 'shutdown' and 'exit'; 1 otherwise.";

ExitCode serve(Session& session, const CLI::App&) {
  const Input input = session.take_standard_input();
  if (is_terminal(input.file))
    session.reporter().note({"quill-inp"}, "lsp is for editors; press Ctrl-D to end it");
  language_server::ServerOptions options;
  options.version = KELP_QUILL_INP_VERSION;
  options.pages_folder = KELP_QUILL_INP_PAGES;
  options.largest_file = session.options().max_size;
  const int code = language_server::run(input.stream, session.output().stream(), options);
  return code == 0 ? ExitCode::Done : ExitCode::No;
}

}  // namespace

Verb add_lsp(CLI::App& program) {
  CLI::App* app = add_verb(program, "lsp", "Serve an editor", example);
  add_common_options(*app);
  return {app, serve};
}

}  // namespace kelp::input::quill::tool
