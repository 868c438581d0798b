#ifndef KELP_INPUT_QUILL_READER_HEADER_LINE_HPP
#define KELP_INPUT_QUILL_READER_HEADER_LINE_HPP

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "kelp/input/quill/document.hpp"

namespace kelp::input::quill {

/// Reads one header line, "#" and surrounding blanks included. Every line gives a command: what is
/// wrong with it is appended to `warnings` under `line_number`, which counts from 1.
HeaderCommand parse_header_command_line(std::string_view line, std::vector<std::string>& warnings,
                                        std::uint64_t line_number);

/// Reads what stands between the parentheses. Commas between quotes do not separate; pieces that
/// are empty or have no name are passed over.
std::vector<CommandParameter> parse_parameter_list(std::string_view list);

/// Returns `value` trimmed and, when it stands between two quotes of one kind, without these. What
/// is between the quotes is not trimmed.
std::string unquote_value(std::string value);

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_READER_HEADER_LINE_HPP
