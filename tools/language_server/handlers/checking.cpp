#include "language_server/handlers/checking.hpp"

#include <limits>
#include <utility>

#include "language_server/diagnostics/diagnostic_list.hpp"
#include "language_server/project/file_address.hpp"
#include "lint/lint.hpp"
#include "lint/mending.hpp"
#include "lint/selection.hpp"
#include "quill-inp/findings/file_report.hpp"
#include "quill-inp/findings/referenced_files.hpp"

namespace kelp::input::quill::language_server {

namespace {

// Texts that take long enough to be shown: some ten thousand atoms.
constexpr std::size_t long_text = std::size_t{1} << 19U;

// An editor makes a correction by its edits, so none of them may be missing.
constexpr lint::Limits limits{tool::most_of_a_rule, std::numeric_limits<std::size_t>::max()};

std::string name_of_file(const std::string& uri) { return uri.substr(uri.rfind('/') + 1); }

/// Returns the options for a check, which notes in `references` what the text refers to.
lint::Options options_for(ServerState& state, const OpenDocument& document,
                          const tool::ProjectChoices& choices, std::set<std::string>& references) {
  lint::Options options;
  options.known_commands = choices.known_commands;
  options.max_change = choices.max_change.value_or(options.max_change);
  const std::string folder = folder_of(path_of_address(document.uri()));
  if (folder.empty()) return options;
  options.read_reference = [&state, &document, &references, folder](const std::string& path) {
    references.insert(referenced_path(folder, path));
    return find_reference(state, document, path);
  };
  return options;
}

Check make_check(ServerState& state, OpenDocument& document, const ProjectFiles::Reading& project) {
  Check check;
  check.project = project.number;
  const lint::Options options = options_for(state, document, project.choices, check.references);
  const bool is_long = document.text().size() >= long_text;
  if (is_long) state.progress.begin(state.outbox, "Checking " + name_of_file(document.uri()));
  const Snapshot& snapshot = document.snapshot();
  if (is_long) state.progress.report(state.outbox, 30);
  check.found = lint::find_first(snapshot.read(), options, limits);
  lint::keep_selected(check.found, {{}, project.choices.ignored});
  if (is_long) state.progress.end(state.outbox);
  return check;
}

/// Returns the check of a text, or a null pointer if it has to be made again.
const Check* find_check(ServerState& state, const OpenDocument& document) {
  const Check* check = state.checks.find(document.uri());
  const bool is_valid = check != nullptr && check->project == project_of(state, document).number;
  return is_valid ? check : nullptr;
}

void publish(ServerState& state, const Snapshot& snapshot, const Check& check) {
  state.outbox.notify(
      "textDocument/publishDiagnostics",
      {{"uri", snapshot.uri()},
       {"version", snapshot.version()},
       {"diagnostics", diagnostic_list(check.found, snapshot, state.client, pages_of(state))}});
}

/// Asks for the findings of a text again.
void check_again(ServerState& state, const std::string& uri) {
  state.checks.forget(uri);
  if (!state.client.can_pull_diagnostics) state.checks.ask_for(uri);
}

/// Makes a client that pulls findings do so for texts that it did not change itself.
void ask_client_to_pull(ServerState& state) {
  if (state.client.can_pull_diagnostics && state.client.can_refresh_diagnostics)
    state.outbox.request("workspace/diagnostic/refresh", nullptr, [](const Message&) {});
}

}  // namespace

const Check& check_of(ServerState& state, OpenDocument& document) {
  if (const Check* check = find_check(state, document)) return *check;
  const ProjectFiles::Reading& project = project_of(state, document);
  return state.checks.keep(document.uri(), make_check(state, document, project));
}

std::string mended_text(ServerState& state, OpenDocument& document) {
  const tool::ProjectChoices& choices = project_of(state, document).choices;
  std::set<std::string> references;
  const lint::Options options = options_for(state, document, choices, references);
  const auto is_wanted = [&](const lint::Finding& finding) {
    return lint::is_selected(finding.code, {{}, choices.ignored});
  };
  return lint::mend(lossless::read_text(document.text()), options, is_wanted).read.text;
}

const ProjectFiles::Reading& project_of(ServerState& state, const OpenDocument& document) {
  static const ProjectFiles::Reading no_project;
  const std::string path = path_of_address(document.uri());
  if (path.empty()) return no_project;
  const ProjectFiles::Reading& reading = state.projects.reading_for(path);
  if (!reading.problem.empty() && state.shown_problems.insert(reading.number).second)
    state.outbox.show(MessageType::Error, reading.problem);
  return reading;
}

lint::ReferencedFile find_reference(ServerState& state, const OpenDocument& document,
                                    const std::string& path) {
  const std::string folder = folder_of(path_of_address(document.uri()));
  const std::string wanted = referenced_path(folder, path);
  for (const auto& [uri, other] : state.documents.all()) {
    if (!other.is_lost() && path_of_address(uri) == wanted)
      return {lint::ReferencedFile::State::Read, {}, other.text()};
  }
  return tool::find_referenced_file(folder, path, state.options.largest_file);
}

void note_change(ServerState& state, const std::string& uri) {
  check_again(state, uri);
  note_file_change(state, path_of_address(uri));
}

void note_file_change(ServerState& state, const std::string& path) {
  const std::set<std::string> texts = state.checks.texts_with(path);
  for (const std::string& uri : texts) check_again(state, uri);
  if (!texts.empty()) ask_client_to_pull(state);
}

void note_new_choices(ServerState& state) {
  for (const auto& [uri, document] : state.documents.all()) check_again(state, uri);
  ask_client_to_pull(state);
}

bool has_findings_to_publish(const ServerState& state) { return state.checks.are_wanted(); }

void check_or_publish(ServerState& state) {
  const std::string uri = state.checks.next_wanted();
  OpenDocument* document = state.documents.find(uri);
  const bool is_ready = document != nullptr && !document->is_lost();
  if (is_ready && find_check(state, *document) == nullptr) {
    check_of(state, *document);
    return;
  }
  if (is_ready) publish(state, document->snapshot(), check_of(state, *document));
  state.checks.stop_asking_for(uri);
}

Pages pages_of(const ServerState& state) {
  return {state.settings.pages, state.options.pages_folder};
}

}  // namespace kelp::input::quill::language_server
