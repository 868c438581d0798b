#include "lint/checks/checks.hpp"
#include "lint/header_line.hpp"

namespace kelp::input::quill::lint {

void check_unclosed_list(const Source& source, Collector& findings) {
  for (std::size_t i = 0; i < source.command_lines().size(); ++i) {
    const HeaderPieces& pieces = pieces_of(source, i);
    // The list begins right after its parenthesis.
    if (!pieces.is_closed) findings.add({{source.range_of(pieces.list).offset - 1, 1}});
  }
}

}  // namespace kelp::input::quill::lint
