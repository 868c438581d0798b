#ifndef KELP_INPUT_QUILL_TESTS_PROPERTIES_COMMAND_OPERATIONS_HPP
#define KELP_INPUT_QUILL_TESTS_PROPERTIES_COMMAND_OPERATIONS_HPP

#include "properties/edit_operation.hpp"

// One function for every operation on header commands. If memory runs out while a command is found
// or created, a new flag may remain.

namespace kelp::input::quill {

EditOperation make_set_flag(ByteSource& source, const QuillInput& document);
EditOperation make_set_assignment(ByteSource& source, const QuillInput& document);
EditOperation make_set_model(ByteSource& source, const QuillInput& document);
EditOperation make_set_device(ByteSource& source, const QuillInput& document);
EditOperation make_set_task(ByteSource& source, const QuillInput& document);
EditOperation make_set_task_parameter(ByteSource& source, const QuillInput& document);
EditOperation make_add_command(ByteSource& source, const QuillInput& document);
EditOperation make_add_moved_command(ByteSource& source, const QuillInput& document);
EditOperation make_set_parameter(ByteSource& source, const QuillInput& document);
EditOperation make_remove_parameter(ByteSource& source, const QuillInput& document);
EditOperation make_remove_command(ByteSource& source, const QuillInput& document);

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_TESTS_PROPERTIES_COMMAND_OPERATIONS_HPP
