#ifndef KELP_INPUT_QUILL_READER_COORDINATE_LINES_HPP
#define KELP_INPUT_QUILL_READER_COORDINATE_LINES_HPP

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "kelp/input/quill/document.hpp"

namespace kelp::input::quill {

/// The keywords of reference lines, as parse_xyz_reference() reports them.
inline constexpr std::string_view xyz_keyword = "XYZ";
inline constexpr std::string_view trajectory_keyword = "XYZTRAJ";

/// The two integers of a charge and multiplicity line.
struct ChargeAndMultiplicity {
  std::int32_t charge;
  std::int32_t multiplicity;
};

/// Reads a line of exactly two integers. Any other line gives nothing.
std::optional<ChargeAndMultiplicity> parse_charge_and_multiplicity(std::string_view line);

/// Returns whether `line` is a reference line. If so, `keyword` is its first word in upper case
/// ("XYZ" or "XYZTRAJ") and `path` the rest of the trimmed line, possibly empty; if not, both are
/// left as they were.
bool parse_xyz_reference(std::string_view line, std::string& keyword, std::string& path);

/// Reads a line of exactly four tokens, a symbol made of letters and three numbers, into an atom
/// that was just made. The symbol is stored in its normal spelling and need not be an element's.
/// Returns whether the line is an atom line; if it is not, the content of `atom` has no meaning.
/// The atom is not returned, because moving an atom right after it was written byte by byte is
/// slow.
bool parse_atom_line(std::string_view line, AtomRecord& atom);

/// Returns, as a view of the line, the token because of which it is not an atom line: the fifth one
/// of a line that has more than four, or else the first one of the wrong form. A line of fewer than
/// four tokens gives the empty view at its end, and an atom line gives nothing.
std::optional<std::string_view> find_token_unlike_an_atom(std::string_view line);

/// Returns what follows the first run of non-blank characters and the blanks after that run. The
/// end is not trimmed.
std::string rest_after_first_word(std::string_view text);

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_READER_COORDINATE_LINES_HPP
