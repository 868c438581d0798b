#include "lint/checks/checks.hpp"
#include "lint/header_line.hpp"

namespace kelp::input::quill::lint {

Findings check_unclosed_list(const Source& source) {
  Findings findings;
  for (std::size_t i = 0; i < source.command_lines().size(); ++i) {
    const HeaderPieces& pieces = pieces_of(source, i);
    // The list begins right after its parenthesis.
    if (!pieces.is_closed) findings.push_back({{source.range_of(pieces.list).offset - 1, 1}});
  }
  return findings;
}

}  // namespace kelp::input::quill::lint
