#ifndef KELP_INPUT_QUILL_TESTS_PROPERTIES_EXPRESSIBLE_HPP
#define KELP_INPUT_QUILL_TESTS_PROPERTIES_EXPRESSIBLE_HPP

#include <array>
#include <optional>
#include <string_view>

#include "kelp/input/quill/quill.hpp"

namespace kelp::input::quill {

/// A property of documents for which the format has no unambiguous text, so that what is written
/// reads back as something else.
struct Exception {
  std::string_view reason;
  bool (*applies)(const QuillInput& document);
};

/// All of them. None of them applies to a document that reads back.
const std::array<Exception, 16>& exceptions();

/// The reason of the first exception that applies to a document as it is written (see
/// as_written.hpp), or nothing when it reads back.
std::optional<std::string_view> reason_not_to_read_back(const QuillInput& written);

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_TESTS_PROPERTIES_EXPRESSIBLE_HPP
