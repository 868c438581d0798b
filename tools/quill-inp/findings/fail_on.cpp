#include "quill-inp/findings/fail_on.hpp"

namespace kelp::input::quill::tool {

std::optional<FailOn> find_fail_on(const std::string& name) {
  if (name == "never") return FailOn();
  for (const auto severity :
       {lint::Severity::Error, lint::Severity::Warning, lint::Severity::Info}) {
    if (name == lint::name_of(severity)) return FailOn(severity);
  }
  return std::nullopt;
}

std::vector<std::string> fail_on_names() { return {"error", "warning", "info", "never"}; }

}  // namespace kelp::input::quill::tool
