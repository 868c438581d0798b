#ifndef KELP_INPUT_QUILL_LINT_WORDING_HPP
#define KELP_INPUT_QUILL_LINT_WORDING_HPP

#include <string>
#include <string_view>
#include <vector>

#include "lint/finding.hpp"

// The messages of findings. They are made last, and are not used for decisions.

namespace kelp::input::quill::lint {

/// The words for one finding: what is wrong, and what to do about it.
struct FindingWords {
  std::string message = {};
  std::string advice = {};
};

/// What stands before an advice.
inline constexpr std::string_view advice_label = "to fix: ";

/// Returns the words for a finding with the code of a rule. They may hold bytes of the text, as
/// they are.
FindingWords words_of(const Finding& finding);

/// Returns a template with its facts: "{name}" is the fact of this name; "{name|one|several}" and
/// "{name|one|several|none}" choose by a count, and may have "{name}" in them; "[...]" is left out
/// when it asks for a fact that is absent, or for a count of zero without words for none.
std::string filled(std::string_view pattern, const std::vector<Fact>& facts);

}  // namespace kelp::input::quill::lint

#endif  // KELP_INPUT_QUILL_LINT_WORDING_HPP
