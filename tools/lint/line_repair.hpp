#ifndef KELP_INPUT_QUILL_LINT_LINE_REPAIR_HPP
#define KELP_INPUT_QUILL_LINT_LINE_REPAIR_HPP

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "lint/finding.hpp"

// What a line says once the characters in it that only look like ASCII are ASCII. Whether a repair
// is one is decided by the readers of lines.

namespace kelp::input::quill::lint {

/// Returns `line` after edits, whose ranges count from `base`.
std::string with_edits(std::string_view line, const std::vector<ByteEdit>& edits,
                       std::size_t base = 0);

/// Returns the edits that put "-" for other minus signs and a blank for other blanks, and take away
/// what is invisible. `base` is added to their offsets.
std::vector<ByteEdit> ascii_edits(std::string_view line, std::size_t base = 0);

/// Returns the edits after which a line is one of an atom of a known element: those above, and if
/// it has four words, points for decimal commas. Nothing if there are none such.
std::optional<std::vector<ByteEdit>> atom_repair(std::string_view line, std::size_t base = 0);

/// Returns the edits after which a line gives charge and multiplicity, or nothing.
std::optional<std::vector<ByteEdit>> charge_repair(std::string_view line, std::size_t base = 0);

/// Returns the edits after which a line is a constraint, a scan or a post file wherever it is among
/// the post-processing lines, or nothing.
std::optional<std::vector<ByteEdit>> post_repair(std::string_view line, std::size_t base = 0);

}  // namespace kelp::input::quill::lint

#endif  // KELP_INPUT_QUILL_LINT_LINE_REPAIR_HPP
