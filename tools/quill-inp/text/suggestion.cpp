#include "quill-inp/text/suggestion.hpp"

#include <algorithm>
#include <cstddef>

#include "kelp/core/text.hpp"

namespace kelp::input::quill::tool {

namespace {

// Nobody types longer names by hand, and the comparison takes quadratic time.
constexpr std::size_t longest_word = 64;

/// Returns the number of typing mistakes between two words: the optimal string alignment distance.
std::size_t count_slips(std::string_view left, std::string_view right) {
  const std::size_t width = right.size() + 1;
  std::vector<std::size_t> table((left.size() + 1) * width);
  const auto cell = [&](std::size_t i, std::size_t j) -> std::size_t& {
    return table[i * width + j];
  };
  for (std::size_t i = 0; i <= left.size(); ++i) {
    for (std::size_t j = 0; j <= right.size(); ++j) {
      if (i == 0 || j == 0) {
        cell(i, j) = i + j;
        continue;
      }
      const std::size_t changed = cell(i - 1, j - 1) + (left[i - 1] == right[j - 1] ? 0 : 1);
      cell(i, j) = std::min({changed, cell(i - 1, j) + 1, cell(i, j - 1) + 1});
      const bool is_swap =
          i > 1 && j > 1 && left[i - 1] == right[j - 2] && left[i - 2] == right[j - 1];
      if (is_swap) cell(i, j) = std::min(cell(i, j), cell(i - 2, j - 2) + 1);
    }
  }
  return cell(left.size(), right.size());
}

std::size_t accepted_slips(std::size_t length) { return std::max<std::size_t>(1, length / 3); }

}  // namespace

std::optional<std::string> nearest_name(std::string_view word,
                                        const std::vector<std::string>& names) {
  if (word.size() > longest_word) return std::nullopt;
  const std::string folded = core::text::to_lower_copy(word);
  std::optional<std::string> nearest;
  std::size_t fewest = accepted_slips(word.size()) + 1;
  for (const std::string& name : names) {
    if (name.size() > longest_word) continue;
    const std::size_t slips = count_slips(folded, core::text::to_lower_copy(name));
    // A name of one letter is one mistake away from every other one, so they are not similar.
    if (slips < fewest && slips <= accepted_slips(name.size()) && slips < name.size()) {
      nearest = name;
      fewest = slips;
    }
  }
  return nearest;
}

std::string did_you_mean(const std::optional<std::string>& name) {
  return name ? "; did you mean '" + *name + "'?" : std::string();
}

std::string suggestion(std::string_view word, const std::vector<std::string>& names) {
  return did_you_mean(nearest_name(word, names));
}

}  // namespace kelp::input::quill::tool
