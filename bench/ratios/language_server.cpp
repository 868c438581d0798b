#include "language_server/server.hpp"

#include <benchmark/benchmark.h>

#include <cstddef>
#include <memory>
#include <string>

#include "kelp/input/quill/quill.hpp"
#include "lint/lint.hpp"
#include "ratios/ratios.hpp"
#include "support/inputs.hpp"

namespace kelp::input::quill::bench {

namespace {

using language_server::Json;
using language_server::Server;

/// A server in this process, with a client that types into one text.
class Session {
 public:
  explicit Session(const std::string& text) {
    send({{"id", 1}, {"method", "initialize"}, {"params", {{"capabilities", Json::object()}}}});
    const Json document = {{"uri", uri}, {"languageId", "quill"}, {"version", 1}, {"text", text}};
    send({{"method", "textDocument/didOpen"}, {"params", {{"textDocument", document}}}});
  }

  /// Replaces the first byte of the text by itself. A change whose findings are not published
  /// measures nothing.
  void change() {
    const std::size_t before = published_;
    const Json range = {{"start", {{"line", 0}, {"character", 0}}},
                        {"end", {{"line", 0}, {"character", 1}}}};
    send({{"method", "textDocument/didChange"},
          {"params",
           {{"textDocument", {{"uri", uri}, {"version", ++version_}}},
            {"contentChanges", Json::array({{{"range", range}, {"text", "#"}}})}}}});
    require_same(published_ == before + 1, "findings after a change");
  }

 private:
  void send(Json message) {
    message["jsonrpc"] = "2.0";
    server_.receive(message.dump());
    while (server_.has_work()) server_.work();
  }

  /// Makes the text of a message, as a client would get it.
  void take(const Json& message) {
    benchmark::DoNotOptimize(language_server::json_text(message));
    if (message.value("method", "") == "textDocument/publishDiagnostics") ++published_;
  }

  static constexpr const char* uri = "file:///nowhere/job.qin";
  int version_ = 1;
  std::size_t published_ = 0;
  Server server_{{}, [this](const Json& message) { take(message); }};
};

void compare_change_with_lint(RatioTable& table, const std::string& row, const std::string& text) {
  const auto session = std::make_shared<Session>(text);
  table.compare(
      row + " : lint", [session] { session->change(); },
      [&text] {
        benchmark::DoNotOptimize(lint::find_all(lossless::read_text(text), lint::Options()));
      },
      2.0);
}

}  // namespace

void add_language_server_ratios(RatioTable& table) {
  const ParseResult ferrocene =
      parse_file(KELP_QUILL_INP_EXAMPLE_INPUTS "/ferrocene_optimisation.qin");
  compare_change_with_lint(table, "change in 10^5 atoms",
                           side_by_side(ferrocene.input, 100'000).to_string());
  compare_change_with_lint(table, "change in 10^5 atoms at random places",
                           molecule(100'000).to_string());
}

}  // namespace kelp::input::quill::bench
