#ifndef KELP_INPUT_QUILL_TOOL_EDITING_ADDITION_DOUBTS_HPP
#define KELP_INPUT_QUILL_TOOL_EDITING_ADDITION_DOUBTS_HPP

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "kelp/input/quill/document.hpp"

namespace kelp::input::quill::tool {

/// Why something that is added to an input is very probably a mistake: structures are not like
/// that.
struct AdditionDoubt {
  enum class Kind {
    NumberBelowOne,       // `line` names the atom `number`
    NumberTooLarge,       // the same, and there are only `atoms`
    RepeatedNumber,       // the same, more than once
    ScanNotFinite,        // the value of the scan `line` is infinite or not a number
    CoordinateNotFinite,  // a coordinate of the atom `number` is
  };

  Kind kind = Kind::NumberBelowOne;
  std::string line = {};
  std::int64_t number = 0;
  std::size_t atoms = 0;
};

/// Returns the doubts about what an edit added to a document: post-processing lines at the end, and
/// atoms. How many atoms there are is counted in the files that the document refers to, relative to
/// `folder`. If one of them cannot be read, or the document has no coordinates, no number is too
/// large.
std::vector<AdditionDoubt> find_addition_doubts(const QuillInput& before, const QuillInput& after,
                                                const std::string& folder);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_EDITING_ADDITION_DOUBTS_HPP
