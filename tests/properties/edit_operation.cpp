#include "properties/edit_operation.hpp"

#include <array>
#include <cstddef>

#include "properties/command_operations.hpp"
#include "properties/line_operations.hpp"

namespace kelp::input::quill {

namespace {

using Make = EditOperation (*)(ByteSource&, const QuillInput&);

// Those that the builder does not have are at the end.
constexpr std::array<Make, 26> operations = {make_set_flag,
                                             make_set_assignment,
                                             make_set_model,
                                             make_set_device,
                                             make_set_task,
                                             make_set_task_parameter,
                                             make_add_command,
                                             make_add_moved_command,
                                             make_set_charge_and_multiplicity,
                                             make_clear_charge_and_multiplicity,
                                             make_add_atom,
                                             make_add_core_atom,
                                             make_set_geometry,
                                             make_set_core_geometry,
                                             make_set_xyz_files,
                                             make_set_xyz_file,
                                             make_set_xyz_trajectory,
                                             make_add_post_command,
                                             make_add_moved_post_command,
                                             make_add_constraint,
                                             make_add_scan,
                                             make_set_post_file,
                                             make_set_parameter,
                                             make_remove_parameter,
                                             make_remove_command,
                                             make_clear_post_commands};
constexpr std::size_t builder_operations = operations.size() - 4;

}  // namespace

EditOperation made_operation(ByteSource& source, const QuillInput& document) {
  return operations[source.below(operations.size())](source, document);
}

EditOperation made_builder_operation(ByteSource& source, const QuillInput& document) {
  return operations[source.below(builder_operations)](source, document);
}

}  // namespace kelp::input::quill
