#ifndef KELP_INPUT_QUILL_TESTS_PROPERTIES_LINE_OPERATIONS_HPP
#define KELP_INPUT_QUILL_TESTS_PROPERTIES_LINE_OPERATIONS_HPP

#include "properties/edit_operation.hpp"

// One function for every operation on the geometry and on post-processing lines. If memory runs
// out, the geometry may have its new kind already, and the atoms may be gone if files replace them.

namespace kelp::input::quill {

EditOperation make_set_charge_and_multiplicity(ByteSource& source, const QuillInput& document);
EditOperation make_clear_charge_and_multiplicity(ByteSource& source, const QuillInput& document);
EditOperation make_add_atom(ByteSource& source, const QuillInput& document);
EditOperation make_add_core_atom(ByteSource& source, const QuillInput& document);
EditOperation make_set_geometry(ByteSource& source, const QuillInput& document);
EditOperation make_set_core_geometry(ByteSource& source, const QuillInput& document);
EditOperation make_set_xyz_files(ByteSource& source, const QuillInput& document);
EditOperation make_set_xyz_file(ByteSource& source, const QuillInput& document);
EditOperation make_set_xyz_trajectory(ByteSource& source, const QuillInput& document);
EditOperation make_add_post_command(ByteSource& source, const QuillInput& document);
EditOperation make_add_moved_post_command(ByteSource& source, const QuillInput& document);
EditOperation make_add_constraint(ByteSource& source, const QuillInput& document);
EditOperation make_add_scan(ByteSource& source, const QuillInput& document);
EditOperation make_set_post_file(ByteSource& source, const QuillInput& document);
EditOperation make_clear_post_commands(ByteSource& source, const QuillInput& document);

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_TESTS_PROPERTIES_LINE_OPERATIONS_HPP
