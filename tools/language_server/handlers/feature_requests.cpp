#include "language_server/handlers/feature_requests.hpp"

#include "language_server/handlers/handlers.hpp"

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

}  // namespace

Json answer_feature(ServerState& state, const Feature& feature, const Json& params) {
  const Snapshot& snapshot = document_of(state, params).snapshot();
  const Surroundings surroundings{state.settings, state.client};
  return std::visit(Call{snapshot, params, surroundings}, feature.answer);
}

}  // namespace kelp::input::quill::language_server
