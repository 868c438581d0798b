#ifndef KELP_INPUT_QUILL_MODEL_PARAMETER_NAME_HPP
#define KELP_INPUT_QUILL_MODEL_PARAMETER_NAME_HPP

#include <string>
#include <string_view>

#include "kelp/core/text.hpp"

namespace kelp::input::quill {

/// Returns the form in which names of parameters are compared. Unlike names of commands, they may
/// begin with a "#".
inline std::string normalize_parameter_name(std::string_view name) {
  return core::text::to_lower_copy(core::text::trim(name));
}

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_MODEL_PARAMETER_NAME_HPP
