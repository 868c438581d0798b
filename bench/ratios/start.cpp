#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <memory>
#include <string>
#include <vector>

#include "kelp/input/quill/quill.hpp"
#include "language_server/protocol/json.hpp"
#include "ratios/ratios.hpp"

namespace kelp::input::quill::bench {

namespace {

constexpr const char* small_file = KELP_QUILL_INP_EXAMPLE_INPUTS "/water_optimisation.qin";

/// Runs a program, whose output nobody reads, and waits for its end.
void run_program(std::vector<std::string> words, const std::string& input = "/dev/null") {
  std::vector<char*> arguments;
  arguments.reserve(words.size() + 1);
  for (std::string& word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);
  char* const environment[] = {nullptr};
  posix_spawn_file_actions_t files;
  posix_spawn_file_actions_init(&files);
  posix_spawn_file_actions_addopen(&files, STDIN_FILENO, input.c_str(), O_RDONLY, 0);
  posix_spawn_file_actions_addopen(&files, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  pid_t child = -1;
  int state = -1;
  const bool has_ended =
      posix_spawn(&child, arguments.front(), &files, nullptr, arguments.data(), environment) == 0 &&
      waitpid(child, &state, 0) == child;
  posix_spawn_file_actions_destroy(&files);
  require_same(has_ended && state == 0, "start of " + words.front());
}

/// What an editor sends until it has the findings of a small file, and then to end the server, in a
/// file.
class EditorSession {
 public:
  EditorSession() : file_(std::tmpfile(), &std::fclose) {
    require_same(file_ != nullptr, "a temporary file");
    using language_server::Json;
    constexpr const char* uri = "file:///nowhere/job.qin";
    const std::string text = parse_file(small_file).input.to_string();
    const Json document = {{"uri", uri}, {"languageId", "quill"}, {"version", 1}, {"text", text}};
    add({{"id", 1}, {"method", "initialize"}, {"params", {{"capabilities", Json::object()}}}});
    add({{"method", "initialized"}, {"params", Json::object()}});
    add({{"method", "textDocument/didOpen"}, {"params", {{"textDocument", document}}}});
    add({{"id", 2},
         {"method", "textDocument/diagnostic"},
         {"params", {{"textDocument", {{"uri", uri}}}}}});
    add({{"id", 3}, {"method", "shutdown"}});
    add({{"method", "exit"}});
    require_same(std::fflush(file_.get()) == 0, "a written file");
  }

  /// The name of the file for the programs that this one starts.
  std::string path() const {
    return "/proc/" + std::to_string(getpid()) + "/fd/" + std::to_string(fileno(file_.get()));
  }

 private:
  void add(language_server::Json message) {
    message["jsonrpc"] = "2.0";
    const std::string text = message.dump();
    const int written =
        std::fprintf(file_.get(), "Content-Length: %zu\r\n\r\n%s", text.size(), text.c_str());
    require_same(written > 0, "a written message");
  }

  std::unique_ptr<std::FILE, int (*)(std::FILE*)> file_;
};

}  // namespace

void add_start_ratios(RatioTable& table) {
  const Work start_nothing = [] { run_program({"/bin/true"}); };
  const Work check_small_file = [] {
    run_program({KELP_QUILL_INP_PROGRAM, "fmt", "--check", small_file});
  };
  table.compare_elapsed("start of quill-inp : true", check_small_file, start_nothing, 10.0);
  const EditorSession session;
  const Work diagnose_small_file = [&session] {
    run_program({KELP_QUILL_INP_PROGRAM, "lsp"}, session.path());
  };
  table.compare_elapsed("start of quill-inp lsp : true", diagnose_small_file, start_nothing, 15.0);
}

}  // namespace kelp::input::quill::bench
