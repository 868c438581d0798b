#ifndef KELP_INPUT_QUILL_LINT_LINE_REPAIR_HPP
#define KELP_INPUT_QUILL_LINT_LINE_REPAIR_HPP

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "lint/finding.hpp"

// What a line says after the characters in it that only look like ASCII are replaced by ASCII. The
// functions that read lines decide whether such a repair is right.

namespace kelp::input::quill::lint {

/// Returns `line` after edits, whose ranges count from `base`.
std::string with_edits(std::string_view line, const std::vector<ByteEdit>& edits,
                       std::size_t base = 0);

/// Returns the edits that replace other minus signs by "-" and other blanks by a blank, and remove
/// what is invisible. `base` is added to their offsets.
std::vector<ByteEdit> ascii_edits(std::string_view line, std::size_t base = 0);

/// Returns the edits after which a line is an atom line with a known element: those above and, if
/// it has four words, points instead of decimal commas. Returns nothing if this is not possible.
std::optional<std::vector<ByteEdit>> atom_repair(std::string_view line, std::size_t base = 0);

/// Returns the edits after which a line gives charge and multiplicity, or nothing.
std::optional<std::vector<ByteEdit>> charge_repair(std::string_view line, std::size_t base = 0);

/// Returns the edits after which a line is a constraint, a scan or a post file wherever it is among
/// the post-processing lines, or nothing.
std::optional<std::vector<ByteEdit>> post_repair(std::string_view line, std::size_t base = 0);

}  // namespace kelp::input::quill::lint

#endif  // KELP_INPUT_QUILL_LINT_LINE_REPAIR_HPP
