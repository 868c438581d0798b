#include "language_server/handlers/feature_requests.hpp"

#include "language_server/handlers/checking.hpp"
#include "language_server/handlers/handlers.hpp"
#include "language_server/project/file_address.hpp"

namespace kelp::input::quill::language_server {

namespace {

/// Calls the function of a feature with what it needs of the parameters.
struct Call {
  const Snapshot& snapshot;
  const Json& params;
  const Surroundings& surroundings;

  Json operator()(TextFeature answer) const { return answer(snapshot, surroundings); }
  Json operator()(PlaceFeature answer) const {
    const Position position = read_position(object_member(params, "position"));
    return answer(snapshot, snapshot.offset_of(position), surroundings);
  }
  Json operator()(RangeFeature answer) const {
    const PositionRange range = read_range(object_member(params, "range"));
    return answer(snapshot, snapshot.range_of(range), surroundings);
  }
  Json operator()(ParamsFeature answer) const { return answer(snapshot, params, surroundings); }
};

Surroundings surroundings_of(ServerState& state, OpenDocument& document) {
  Surroundings surroundings{state.settings, state.client};
  surroundings.path = path_of_address(document.uri());
  surroundings.known_commands = project_of(state, document).choices.known_commands;
  surroundings.findings = [&]() -> const lint::Findings& {
    return check_of(state, document).found.findings;
  };
  if (surroundings.path.empty()) return surroundings;
  surroundings.read_reference = [&](const std::string& path) {
    return find_reference(state, document, path);
  };
  return surroundings;
}

}  // namespace

Json answer_feature(ServerState& state, const Feature& feature, const Json& params) {
  OpenDocument& document = document_of(state, params);
  const Snapshot& snapshot = document.snapshot();
  const Surroundings surroundings = surroundings_of(state, document);
  return std::visit(Call{snapshot, params, surroundings}, feature.answer);
}

}  // namespace kelp::input::quill::language_server
