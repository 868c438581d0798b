#ifndef KELP_INPUT_QUILL_TESTS_PROPERTIES_OBVIOUS_READER_HPP
#define KELP_INPUT_QUILL_TESTS_PROPERTIES_OBVIOUS_READER_HPP

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "kelp/input/quill/quill.hpp"

// The reader once more, line by line and copy by copy, in the order in which the format is told.

namespace kelp::input::quill::obvious {

/// A header command and what is to be said about its line.
struct HeaderLine {
  HeaderCommand command;
  std::vector<std::string> warnings;
};
HeaderLine header_line(std::string_view line, std::uint64_t line_number);
std::vector<CommandParameter> parameter_list(std::string_view text);
std::string unquoted(std::string_view value);

/// The charge and the multiplicity.
std::optional<std::pair<int, int>> charge_line(std::string_view line);

/// The keyword in upper case and the path.
std::optional<std::pair<std::string, std::string>> reference_line(std::string_view line);

std::optional<AtomRecord> atom_line(std::string_view line);

std::optional<PostCommand> post_line(std::string_view line);

/// Whether a line has the keyword and the number of tokens of some kind of post-processing line.
/// If so it is either one of that kind or malformed, and if not it is kept as it is.
bool is_post_line_with_keyword(std::string_view line);

ParseResult parse(std::string_view text);

}  // namespace kelp::input::quill::obvious

#endif  // KELP_INPUT_QUILL_TESTS_PROPERTIES_OBVIOUS_READER_HPP
