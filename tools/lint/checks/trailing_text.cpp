#include "lint/checks/checks.hpp"
#include "lint/header_line.hpp"

namespace kelp::input::quill::lint {

void check_trailing_text(const Source& source, Collector& findings) {
  for (std::size_t i = 0; i < source.command_lines().size(); ++i) {
    const HeaderPieces& pieces = pieces_of(source, i);
    if (!pieces.trailing.empty())
      findings.add({source.range_of(pieces.trailing), {text_fact("text", pieces.trailing)}});
  }
}

}  // namespace kelp::input::quill::lint
