#ifndef KELP_INPUT_QUILL_TOOL_SWEEP_NAME_PATTERN_HPP
#define KELP_INPUT_QUILL_TOOL_SWEEP_NAME_PATTERN_HPP

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kelp::input::quill::tool {

/// The fields of a pattern: their names and what they stand for in one name.
using NameFields = std::vector<std::pair<std::string, std::string>>;

/// Returns the name that a pattern such as "jobs/{name}-{opt.maxiter}.qin" makes with these fields;
/// "{{" and "}}" are braces. Throws UsageError for an unknown field, a brace without the other one
/// of its pair, and a value that has a "/" and would be taken for a folder.
std::string make_name(std::string_view pattern, const NameFields& fields);

/// Returns the last part of a path without what follows its last dot: "water" for "in/water.qin".
std::string stem_of(const std::string& path);

/// Returns a number, with zeros before it so that all numbers up to `largest` have the same length.
std::string padded_number(std::size_t number, std::size_t largest);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_SWEEP_NAME_PATTERN_HPP
