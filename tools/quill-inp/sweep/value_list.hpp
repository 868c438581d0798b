#ifndef KELP_INPUT_QUILL_TOOL_SWEEP_VALUE_LIST_HPP
#define KELP_INPUT_QUILL_TOOL_SWEEP_VALUE_LIST_HPP

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "quill-inp/keys/key.hpp"

namespace kelp::input::quill::tool {

/// A key and the values that it gets, one after another.
struct ValueList {
  std::string key_text = {};
  Key key = CommandKey{};
  std::vector<std::string> values = {};
};

/// Reads "opt.maxiter=[50,100]", or "model=m1" for a list of one. A backslash before a "," or a "\"
/// makes it part of a value. Throws UsageError for a text that is not a setting, and for an empty
/// list.
ValueList parse_value_list(const std::string& text);

/// How lists are combined: every value of one with every value of the others, the last list
/// changing fastest; or the first values of all, the second values of all, and so on.
enum class Combination { Product, Zip };

/// Returns the number of combinations. Throws UsageError for lists that have different lengths but
/// are to be zipped, and for more than a million combinations.
std::size_t count_combinations(const std::vector<std::size_t>& lengths, Combination combination);

/// Returns, for each list, which of its values is in the combination with this number.
std::vector<std::size_t> indices_of(std::size_t number, const std::vector<std::size_t>& lengths,
                                    Combination combination);

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_SWEEP_VALUE_LIST_HPP
