#ifndef KELP_INPUT_QUILL_TESTS_TOOLS_QUILL_INP_FORMATS_JSON_SCHEMA_HPP
#define KELP_INPUT_QUILL_TESTS_TOOLS_QUILL_INP_FORMATS_JSON_SCHEMA_HPP

#include <nlohmann/json_fwd.hpp>

namespace kelp::input::quill::tool {

/// Returns whether `value` is valid under `schema`, whose root is the schema itself. Knows the
/// keywords that the published schema uses; one that it does not know throws std::runtime_error, so
/// that none is ignored.
bool is_valid(const nlohmann::json& value, const nlohmann::json& schema);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TESTS_TOOLS_QUILL_INP_FORMATS_JSON_SCHEMA_HPP
