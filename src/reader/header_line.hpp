#ifndef KELP_INPUT_QUILL_READER_HEADER_LINE_HPP
#define KELP_INPUT_QUILL_READER_HEADER_LINE_HPP

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "kelp/input/quill/document.hpp"

namespace kelp::input::quill {

/// Reads one header line, "#" and surrounding blanks included. Every line gives a command. Its
/// faults are appended to `warnings` with `line_number`, which is counted from 1.
HeaderCommand parse_header_command_line(std::string_view line, std::vector<std::string>& warnings,
                                        std::uint64_t line_number);

/// Reads the text between the parentheses. Commas between quotes do not separate; pieces that are
/// empty or have no name are skipped.
std::vector<CommandParameter> parse_parameter_list(std::string_view list);

/// Returns `value` trimmed and, if it is between two quotes of one kind, without these. The text
/// between the quotes is not trimmed.
std::string unquote_value(std::string value);

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_READER_HEADER_LINE_HPP
