#include "language_server/editing/formatted_text.hpp"

#include <algorithm>
#include <utility>

#include "kelp/input/quill/lossless/input_doubt.hpp"
#include "kelp/input/quill/lossless/proof.hpp"
#include "kelp/input/quill/lossless/wording.hpp"
#include "language_server/editing/changed_lines.hpp"
#include "language_server/protocol/response_error.hpp"
#include "lint/line_repair.hpp"
#include "quill-inp/editing/canonical_text.hpp"
#include "quill-inp/editing/losses.hpp"
#include "quill-inp/editing/wording.hpp"
#include "quill-inp/text/terminal_text.hpp"

namespace kelp::input::quill::language_server {

namespace {

[[noreturn]] void refuse(const std::string& reason) {
  throw ResponseError(ErrorCode::RequestFailed,
                      "not formatted: " + tool::shown_on_one_line(reason));
}

void refuse_losses(const tool::Losses& losses) {
  if (losses.count() == 0) return;
  refuse(tool::words(losses, 1).front().text);
}

}  // namespace

std::string formatted_text(const lossless::ReadText& read) {
  if (const auto doubt = lossless::find_input_doubt(read))
    refuse("the text " + lossless::words(*doubt));
  const QuillInput& document = read.result.input;
  tool::CanonicalText canonical = tool::canonical_text(document);
  const lossless::Proof proof = lossless::prove(canonical.text, document, tool::accepted_change);
  refuse_losses({{}, tool::list_line_losses(read), std::move(canonical.problems), proof, document});
  return std::move(canonical.text);
}

std::vector<lint::ByteEdit> formatting_of_range(const lossless::ReadText& read,
                                                const lint::Range& range) {
  std::vector<lint::ByteEdit> edits = changed_lines(read.text, formatted_text(read));
  // A selection of whole lines ends where the next line begins, which is not selected.
  const auto is_outside = [&](const lint::ByteEdit& edit) {
    return edit.range.length == 0 || range.length == 0
               ? edit.range.end() < range.offset || range.end() < edit.range.offset
               : edit.range.end() <= range.offset || range.end() <= edit.range.offset;
  };
  edits.erase(std::remove_if(edits.begin(), edits.end(), is_outside), edits.end());
  const lossless::Proof proof =
      lossless::prove(lint::with_edits(read.text, edits), read.result.input, tool::accepted_change);
  refuse_losses({{}, {}, {}, proof, read.result.input});
  return edits;
}

}  // namespace kelp::input::quill::language_server
