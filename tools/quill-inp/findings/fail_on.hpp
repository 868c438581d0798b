#ifndef KELP_INPUT_QUILL_TOOL_FINDINGS_FAIL_ON_HPP
#define KELP_INPUT_QUILL_TOOL_FINDINGS_FAIL_ON_HPP

#include <optional>
#include <string>
#include <vector>

#include "lint/rule.hpp"

namespace kelp::input::quill::tool {

/// The lowest severity of a finding that makes the exit code 1. An empty value means never.
using FailOn = std::optional<lint::Severity>;

/// Returns what the name of a severity, or "never", says, or nothing for another name.
std::optional<FailOn> find_fail_on(const std::string& name);

/// The names that find_fail_on() knows.
std::vector<std::string> fail_on_names();

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_FINDINGS_FAIL_ON_HPP
