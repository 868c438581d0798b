#ifndef KELP_INPUT_QUILL_LANGUAGE_SERVER_DOCUMENTS_UNIT_COUNTS_HPP
#define KELP_INPUT_QUILL_LANGUAGE_SERVER_DOCUMENTS_UNIT_COUNTS_HPP

#include <cstddef>
#include <string_view>
#include <vector>

#include "language_server/documents/position_encoding.hpp"

namespace kelp::input::quill::language_server {

/// Counts the units between two bytes of a text without reading all that is between them, so that
/// many places on one long line cost no more than as many on short lines.
class UnitCounts {
 public:
  /// Reads the whole text, which is UTF-8.
  UnitCounts(std::string_view text, PositionEncoding encoding);

  /// Returns how many units begin from one byte up to another one of `text`, which is the text that
  /// was read.
  std::size_t between(std::size_t begin, std::size_t end, std::string_view text) const;

 private:
  std::size_t before(std::size_t offset, std::string_view text) const;

  PositionEncoding encoding_;
  std::vector<std::size_t> marks_ = {};  // the counts before the multiples of the step
};

}  // namespace kelp::input::quill::language_server

#endif  // KELP_INPUT_QUILL_LANGUAGE_SERVER_DOCUMENTS_UNIT_COUNTS_HPP
