// What the features of the language server do with large texts.

#include <cstddef>
#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "language_server/diagnostics/diagnostic_list.hpp"
#include "language_server/editing/code_actions.hpp"
#include "language_server/features/features.hpp"
#include "language_server/server.hpp"
#include "lint/lint.hpp"
#include "scale/tasks.hpp"

namespace kelp::input::quill {

namespace {

namespace server = language_server;

using server::Json;
using server::Snapshot;
using server::Surroundings;

std::string repeated(std::string_view piece, std::size_t count) {
  std::string text;
  for (std::size_t i = 0; i < count; ++i) text += piece;
  return text;
}

std::string atoms(std::size_t n) {
  return "#opt\n0 1\n" + repeated("C -0.729000 -2.609047 2.312980\n", n) + "C 1\n";
}

std::string commands(std::size_t n) { return repeated("#opt(maxiter=50, tight)\n", n) + "0 1\n"; }

std::string post_lines(std::size_t n) { return "0 1\nHe 0 0 0\n" + repeated("S 1 2 1.5 10\n", n); }

std::string references(std::size_t n) { return "0 1\n" + repeated("XYZ water.xyz\n", n); }

/// One line, which does not end.
std::string parameters(std::size_t n) { return "#opt(" + repeated("maxiter=50, ", n) + "tight"; }

// Large enough for a quadratic cost to show, small enough for callgrind to count in a minute.
constexpr std::size_t size_of_tasks = 500;
// For those that take many instructions for each finding or atom.
constexpr std::size_t size_of_long_tasks = 250;

struct FeatureTask {
  std::string_view name;
  std::string (*text)(std::size_t size);
  std::function<Json(const Snapshot&, std::size_t last, const Surroundings&)> answer;
  std::size_t size = size_of_tasks;
};

Json all_tokens(const Snapshot& snapshot, std::size_t /*last*/, const Surroundings& surroundings) {
  return server::semantic_tokens(snapshot, surroundings);
}

Json outline(const Snapshot& snapshot, std::size_t /*last*/, const Surroundings& surroundings) {
  return server::document_symbols(snapshot, surroundings);
}

Json folds(const Snapshot& snapshot, std::size_t /*last*/, const Surroundings& surroundings) {
  return server::folding_ranges(snapshot, surroundings);
}

Json links(const Snapshot& snapshot, std::size_t /*last*/, const Surroundings& surroundings) {
  return server::document_links(snapshot, surroundings);
}

Json all_hints(const Snapshot& snapshot, std::size_t last, const Surroundings& surroundings) {
  return server::inlay_hints(snapshot, {0, last}, surroundings);
}

Json at_place(const Snapshot& snapshot, std::size_t offset) {
  return server::to_json(snapshot.position_of(offset));
}

Json places_of_atom(const Snapshot& snapshot, std::size_t /*last*/,
                    const Surroundings& surroundings) {
  const Json params = {{"position", at_place(snapshot, snapshot.text().find("He"))}};
  return server::references(snapshot, params, surroundings);
}

Json selection(const Snapshot& snapshot, std::size_t last, const Surroundings& surroundings) {
  const Json params = {{"positions", Json::array({at_place(snapshot, last)})}};
  return server::selection_ranges(snapshot, params, surroundings);
}

Json atom_of_last_line(const Snapshot& snapshot, std::size_t last,
                       const Surroundings& surroundings) {
  return server::definition(snapshot, last - 1, surroundings);
}

/// Every parameter but the first has a finding with a related place.
Json diagnostics(const Snapshot& snapshot, std::size_t /*last*/, const Surroundings& /*unused*/) {
  server::ClientAbilities client;
  client.has_related_places = true;
  const lint::FirstFindings found{lint::find_all(snapshot.read(), lint::Options()), {}};
  return server::diagnostic_list(found, snapshot, client, {});
}

/// What an editor asks for when all of its text is selected.
Json corrections_of_all(const Snapshot& snapshot, std::size_t last,
                        const Surroundings& /*unused*/) {
  server::ClientAbilities client;
  client.has_literal_code_actions = true;
  const lint::FirstFindings found{lint::find_all(snapshot.read(), lint::Options()), {}};
  const Json context = {{"diagnostics", server::diagnostic_list(found, snapshot, client, {})}};
  const server::Corrections corrections{found.findings, [] { return std::string(); }};
  const Json actions = server::code_actions(snapshot, {0, last}, context, corrections, client);
  return actions.size() > 1 ? actions : Json();
}

const FeatureTask feature_tasks[] = {
    {"SemanticTokensOfAtoms", atoms, all_tokens},
    {"SemanticTokensOfParameters", parameters, all_tokens},
    {"SemanticTokensOfPostLines", post_lines, all_tokens},
    {"DocumentSymbolsOfCommands", commands, outline},
    {"DocumentSymbolsOfPostLines", post_lines, outline},
    {"FoldingRangesOfAtoms", atoms, folds},
    {"DocumentLinksOfReferences", references, links},
    {"InlayHintsOfAtoms", atoms, all_hints},
    {"ReferencesInPostLines", post_lines, places_of_atom},
    {"DefinitionAfterAtoms", atoms, atom_of_last_line},
    {"SelectionRangesAfterAtoms", atoms, selection},
    {"SelectionRangesOfParameters", parameters, selection},
    {"HoverAfterAtoms", atoms, server::hover},
    {"HoverOfParameters", parameters, server::hover},
    {"CompletionAfterAtoms", atoms, server::completion},
    {"CompletionOfParameters", parameters, server::completion},
    {"DiagnosticsOfParameters", parameters, diagnostics, size_of_long_tasks},
    {"CorrectionsOfParameters", parameters, corrections_of_all, size_of_long_tasks},
};

std::shared_ptr<const Snapshot> prepare(const FeatureTask& task, std::size_t size) {
  const std::string text = task.text(size);
  return std::make_shared<Snapshot>("file:///job.qin", 1, lossless::read_text(text),
                                    server::LineStarts(text), server::PositionEncoding::Utf16);
}

Task task_of(const FeatureTask& task) {
  return {std::string(task.name), task.size, [&task](std::size_t size) {
            return [&task, snapshot = prepare(task, size)] {
              const server::Settings settings;
              const server::ClientAbilities client;
              const Json answer =
                  task.answer(*snapshot, snapshot->text().size() - 1, {settings, client});
              return !answer.is_null();
            };
          }};
}

/// A server with a text, as a client changes it.
class Session {
 public:
  explicit Session(const std::string& text) {
    send({{"id", 1}, {"method", "initialize"}, {"params", {{"capabilities", Json::object()}}}});
    const Json document = {{"uri", uri}, {"languageId", "quill"}, {"version", 1}, {"text", text}};
    send({{"method", "textDocument/didOpen"}, {"params", {{"textDocument", document}}}});
  }

  /// Types a blank at the end of the first line. Returns whether the findings were published.
  bool change() {
    const std::size_t published = published_;
    const Json end = {{"line", 0}, {"character", 1U << 30U}};
    const Json change = {{"range", {{"start", end}, {"end", end}}}, {"text", " "}};
    send({{"method", "textDocument/didChange"},
          {"params",
           {{"textDocument", {{"uri", uri}, {"version", 2}}},
            {"contentChanges", Json::array({change})}}}});
    return published_ == published + 1;
  }

 private:
  void send(Json message) {
    message["jsonrpc"] = "2.0";
    server_.receive(message.dump());
    while (server_.has_work()) server_.work();
  }

  static constexpr const char* uri = "file:///nowhere/job.qin";
  std::size_t published_ = 0;
  server::Server server_{server::ServerOptions(), [this](const Json& message) {
                           if (message.value("method", "") == "textDocument/publishDiagnostics")
                             ++published_;
                         }};
};

Task change_before_atoms() {
  return {"ChangeBeforeAtoms", size_of_long_tasks, [](std::size_t size) {
            return [session = std::make_shared<Session>(atoms(size))] { return session->change(); };
          }};
}

std::vector<Task> all_tasks() {
  std::vector<Task> all;
  for (const FeatureTask& task : feature_tasks) all.push_back(task_of(task));
  all.push_back(change_before_atoms());
  return all;
}

}  // namespace

void PrintTo(const Task& task, std::ostream* out) { *out << task.name; }

const std::vector<Task>& tasks() {
  static const std::vector<Task> all = all_tasks();
  return all;
}

}  // namespace kelp::input::quill
