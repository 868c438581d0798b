#include "lint/xyz_frame.hpp"

#include <algorithm>
#include <vector>

#include "kelp/input/quill/lossless/xyz_frames.hpp"
#include "lint/tokens.hpp"

namespace kelp::input::quill::lint {

namespace {

constexpr std::size_t lines_before_atoms = 2;

bool is_atom(std::string_view line) {
  const std::vector<std::string_view> tokens = tokens_of(line);
  return tokens.size() >= 4 && std::all_of(tokens.begin() + 1, tokens.begin() + 4, is_number);
}

/// Returns the first line of a text, and removes it there.
std::string_view take_line(std::string_view& text) {
  const std::size_t end = std::min(text.find('\n'), text.size());
  const std::string_view line = text.substr(0, end);
  text.remove_prefix(std::min(end + 1, text.size()));
  return line;
}

}  // namespace

std::optional<std::size_t> count_atoms_of_first_frame(std::string_view content) {
  const std::optional<std::size_t> count = lossless::find_xyz_count(content);
  if (!count) return std::nullopt;
  for (std::size_t i = 0; i < lines_before_atoms; ++i) take_line(content);
  for (std::size_t i = 0; i < *count; ++i) {
    if (content.empty() || !is_atom(take_line(content))) return std::nullopt;
  }
  return count;
}

bool has_whole_first_frame(std::string_view beginning) {
  if (beginning.find('\n') == std::string_view::npos) return false;
  const std::size_t atoms = lossless::find_xyz_count(beginning).value_or(0);
  if (atoms == 0) return true;
  const auto line_ends =
      static_cast<std::size_t>(std::count(beginning.begin(), beginning.end(), '\n'));
  return line_ends >= lines_before_atoms && line_ends - lines_before_atoms >= atoms;
}

}  // namespace kelp::input::quill::lint
