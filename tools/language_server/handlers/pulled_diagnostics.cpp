#include <string>

#include "language_server/diagnostics/diagnostic_list.hpp"
#include "language_server/handlers/checking.hpp"
#include "language_server/handlers/handlers.hpp"

namespace kelp::input::quill::language_server {

Json pull_diagnostics(ServerState& state, const Json& params) {
  OpenDocument& document = document_of(state, params);
  const Check& check = check_of(state, document);
  const std::string result = std::to_string(check.number);
  if (find_member(params, "previousResultId") == result)
    return {{"kind", "unchanged"}, {"resultId", result}};
  return {
      {"kind", "full"},
      {"resultId", result},
      {"items", diagnostic_list(check.found, document.snapshot(), state.client, pages_of(state))}};
}

}  // namespace kelp::input::quill::language_server
