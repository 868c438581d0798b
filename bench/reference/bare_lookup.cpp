#include <string>
#include <string_view>

#include "kelp/core/text.hpp"
#include "reference/bare_loops.hpp"

namespace kelp::input::quill::bench {

namespace text = core::text;

namespace {

std::string canonical(std::string_view name) {
  std::string trimmed = text::trim(name);
  if (trimmed.front() == '#') trimmed = text::trim(std::string_view(trimmed).substr(1));
  return text::to_lower_copy(trimmed);
}

std::string key(std::string_view name) { return text::to_lower_copy(text::trim(name)); }

void set_value(HeaderCommand& command, std::string_view parameter, std::string_view value) {
  const std::string wanted = key(parameter);
  for (CommandParameter& candidate : command.parameters) {
    if (key(candidate.name) == wanted) {
      candidate.value = std::string(value);
      return;
    }
  }
}

}  // namespace

void set_parameter_bare(QuillInput& input, std::string_view command, std::string_view parameter,
                        std::string_view value) {
  const std::string wanted = canonical(command);
  for (HeaderCommand& candidate : input.commands) {
    if (canonical(candidate.name) == wanted) return set_value(candidate, parameter, value);
  }
}

}  // namespace kelp::input::quill::bench
