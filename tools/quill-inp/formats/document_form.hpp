#ifndef KELP_INPUT_QUILL_TOOL_FORMATS_DOCUMENT_FORM_HPP
#define KELP_INPUT_QUILL_TOOL_FORMATS_DOCUMENT_FORM_HPP

// The form of the JSON of a document, as tables: which members an object may have, what each must
// be, and where it goes. The reader goes through these tables and knows nothing about documents.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "kelp/input/quill/document.hpp"
#include "quill-inp/formats/json_reading.hpp"

namespace kelp::input::quill::tool {

struct MemberForm;

/// What a JSON value must be, and what is done with it. Members that the kind does not need are
/// null pointers.
struct ValueForm {
  enum class Kind {
    Object,
    List,
    Text,   // a string, or the object that stands for one that is not UTF-8
    Other,  // another value that is neither a list nor an object
  };

  Kind kind = Kind::Other;

  const MemberForm* members = nullptr;  // of an object
  std::size_t member_count = 0;
  /// Makes the part of the document that an object describes; what follows fills it.
  void (*begin)(QuillInput& document) = nullptr;
  /// Ends an object; `given` has the bit `1 << i` for each member number i that it has.
  void (*end)(QuillInput& document, std::uint32_t given) = nullptr;

  const ValueForm* entry = nullptr;  // of a list

  /// Stores a text or another value. Returns false for one that it cannot be.
  bool (*store)(QuillInput& document, JsonScalar& scalar) = nullptr;
  /// Returns what the value has to be, for a message: "a 32-bit integer".
  std::string (*expected)() = nullptr;
};

struct MemberForm {
  std::string_view name;
  const ValueForm* value;
  bool is_required = false;
};

/// Returns the form of a whole document.
const ValueForm& document_form();

}  // namespace kelp::input::quill::tool

#endif  // KELP_INPUT_QUILL_TOOL_FORMATS_DOCUMENT_FORM_HPP
