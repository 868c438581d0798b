#ifndef KELP_INPUT_QUILL_TESTS_PROPERTIES_EDIT_OPERATION_HPP
#define KELP_INPUT_QUILL_TESTS_PROPERTIES_EDIT_OPERATION_HPP

#include <functional>
#include <utility>

#include "kelp/input/quill/quill.hpp"
#include "properties/byte_source.hpp"

namespace kelp::input::quill {

/// One operation with its arguments, as it is asked of an editor and of a builder, and as it is
/// done to plain vectors. The arguments for the first two may refer to their own documents; those
/// for the third are copies.
struct EditOperation {
  /// What comes back says whether something was removed; of all other operations it is true.
  std::function<bool(InputEditor&)> edit;
  std::function<bool(QuillInput&)> model;
  /// Empty where the builder has no such operation.
  std::function<void(InputBuilder&)> build;
  /// What a lack of memory may leave of a document. Where this is empty, the document stays as it
  /// was.
  std::function<void(QuillInput&)> leave_half_done;
};

/// An operation that removes nothing.
template <typename Edit, typename Model>
EditOperation change(Edit edit, Model model, std::function<void(InputBuilder&)> build = {},
                     std::function<void(QuillInput&)> leave_half_done = {}) {
  return {[=](InputEditor& editor) {
            edit(editor);
            return true;
          },
          [=](QuillInput& document) {
            model(document);
            return true;
          },
          std::move(build), std::move(leave_half_done)};
}

/// Makes one of all operations for a document.
EditOperation made_operation(ByteSource& source, const QuillInput& document);

/// Makes one of those that the builder has as well.
EditOperation made_builder_operation(ByteSource& source, const QuillInput& document);

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_TESTS_PROPERTIES_EDIT_OPERATION_HPP
