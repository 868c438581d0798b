#include "lint/xyz_frame.hpp"

#include <algorithm>
#include <string>
#include <vector>

#include "kelp/core/text.hpp"
#include "lint/tokens.hpp"

namespace kelp::input::quill::lint {

namespace {

constexpr std::size_t lines_before_atoms = 2;

bool is_atom(const std::string& line) {
  const std::vector<std::string_view> tokens = tokens_of(line);
  return tokens.size() >= 4 && std::all_of(tokens.begin() + 1, tokens.begin() + 4, is_number);
}

}  // namespace

std::optional<std::size_t> count_atoms_of_first_frame(std::string_view content) {
  const std::vector<std::string> lines = core::text::split_lines(content);
  int count = 0;
  if (lines.empty() || !core::text::try_parse_int(core::text::trim(lines.front()), count))
    return std::nullopt;
  const auto atoms = static_cast<std::size_t>(std::max(count, 0));
  if (atoms == 0 || lines.size() < lines_before_atoms + atoms) return std::nullopt;
  const auto first = lines.begin() + lines_before_atoms;
  if (!std::all_of(first, first + count, is_atom)) return std::nullopt;
  return atoms;
}

}  // namespace kelp::input::quill::lint
