#include "quill-inp/editing/canonical_text.hpp"

#include <utility>

namespace kelp::input::quill::tool {

CanonicalText canonical_text(const QuillInput& document) {
  lossless::QuotedDocument quoted = lossless::quote(document);
  return {quoted.document.to_string(), std::move(quoted.problems)};
}

}  // namespace kelp::input::quill::tool
