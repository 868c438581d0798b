#ifndef KELP_INPUT_QUILL_LANGUAGE_SERVER_FEATURES_FEATURE_HPP
#define KELP_INPUT_QUILL_LANGUAGE_SERVER_FEATURES_FEATURE_HPP

// What the server answers about a text.
//
// A feature is one file in this folder: a pure function from a snapshot of the text, and what the
// request says besides, to the result of the request as JSON, with positions that the snapshot
// makes from offsets. It is declared in features.hpp and has one row in the table of
// all_features.cpp, which names its method and what the server tells the client about it. Nothing
// else has to know it: the dispatcher finds the text, reads the parameters that the type of the
// function asks for, and sends the result or the ResponseError that the function throws.

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "language_server/documents/snapshot.hpp"
#include "language_server/protocol/json.hpp"
#include "lint/finding.hpp"
#include "lint/source.hpp"

namespace kelp::input::quill::language_server {

/// What the user of the editor has chosen.
struct Settings {
  bool shows_atom_numbers = true;  // as inlay hints
  std::string pages = {};          // an address as in Pages: "https://host/{code}.html"
};

/// What the client can do with an answer.
struct ClientAbilities {
  bool has_markdown = false;              // in hover texts and completions
  bool has_snippets = false;              // in completions
  bool has_nested_symbols = false;        // document symbols with children
  bool has_line_folding_only = false;     // folding ranges from line to line
  bool has_literal_code_actions = false;  // code actions that are not commands
  bool has_progress = false;              // window/workDoneProgress/create
  bool has_configuration = false;         // workspace/configuration
  bool can_register_watchers = false;     // workspace/didChangeWatchedFiles
  bool can_refresh_diagnostics = false;   // workspace/diagnostic/refresh
  bool can_pull_diagnostics = false;      // textDocument/diagnostic
  bool has_related_places = false;        // of diagnostics
  bool has_unnecessary_tag = false;       // of diagnostics
  bool has_code_links = false;            // from a diagnostic to the page of its code
  bool has_configuration_events = false;  // workspace/didChangeConfiguration, if registered
  bool can_refresh_hints = false;         // workspace/inlayHint/refresh
  bool has_versioned_edits = false;       // workspace edits with versions of texts
};

/// What a feature may use besides the text.
struct Surroundings {
  const Settings& settings;
  const ClientAbilities& client;
  std::string path = {};  // of the file of the text; empty if its address is not that of a file

  /// The commands that the project knows besides those of every input.
  std::vector<std::string> known_commands = {};

  /// What the linter finds in the text. It is looked for at the first call, and kept as long as the
  /// snapshot.
  std::function<const lint::Findings&()> findings = {};

  /// Reads a file as the input refers to it: the buffer of the editor if it is open there.
  std::function<lint::ReferencedFile(const std::string& path)> read_reference = {};
};

/// The functions of features, by what they need of the parameters of their request.
using TextFeature = Json (*)(const Snapshot&, const Surroundings&);
using PlaceFeature = Json (*)(const Snapshot&, std::size_t offset, const Surroundings&);
using RangeFeature = Json (*)(const Snapshot&, const lint::Range&, const Surroundings&);
/// For a request with other parameters, which the function reads itself.
using ParamsFeature = Json (*)(const Snapshot&, const Json& params, const Surroundings&);

/// A row of the table of features.
struct Feature {
  std::string_view method;
  std::variant<TextFeature, PlaceFeature, RangeFeature, ParamsFeature> answer;
  std::string_view capability;  // the member of the server's capabilities for it
  Json options;                 // its value
};

/// All features, in the order of their methods.
const std::vector<Feature>& all_features();

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_LANGUAGE_SERVER_FEATURES_FEATURE_HPP
