#ifndef KELP_INPUT_QUILL_LANGUAGE_SERVER_DOCUMENTS_LINE_STARTS_HPP
#define KELP_INPUT_QUILL_LANGUAGE_SERVER_DOCUMENTS_LINE_STARTS_HPP

#include <cstddef>
#include <string_view>
#include <vector>

namespace kelp::input::quill::language_server {

/// Where the lines of a text begin, as the protocol counts lines: LF, CR LF and a CR alone end one,
/// and there is a line after the last of them, perhaps an empty one. The reader of inputs has other
/// lines: a CR alone ends none, and nothing follows a line end at the end of the text.
class LineStarts {
 public:
  explicit LineStarts(std::string_view text);

  std::size_t count() const { return starts_.size(); }

  /// The offset of the first byte of a line, counted from 0.
  std::size_t start_of(std::size_t line) const { return starts_[line]; }

  /// Returns the line that a byte of the text, or its end, belongs to.
  std::size_t line_at(std::size_t offset) const;

  /// Returns a line of `text`, which has these lines, without its line end.
  std::string_view content(std::size_t line, std::string_view text) const;

  /// Takes over that `removed` bytes at `offset` were replaced by `inserted` ones, which gave
  /// `text`. Looks at the inserted bytes and moves the lines after them.
  void replace(std::size_t offset, std::size_t removed, std::size_t inserted,
               std::string_view text);

 private:
  std::vector<std::size_t> starts_ = {};
};

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_LANGUAGE_SERVER_DOCUMENTS_LINE_STARTS_HPP
