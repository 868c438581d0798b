#ifndef KELP_INPUT_QUILL_LINT_CHECKS_CHECKS_HPP
#define KELP_INPUT_QUILL_LINT_CHECKS_CHECKS_HPP

#include "lint/source.hpp"

// One function for each rule, each in its own file. Each returns what it finds in a text, in the
// order of the places, without the code, which is in the table of rules.

namespace kelp::input::quill::lint {

Findings check_byte_order_mark(const Source& source);
Findings check_lone_carriage_return(const Source& source);
Findings check_mixed_line_ends(const Source& source);
Findings check_unicode_blank(const Source& source);
Findings check_invisible_character(const Source& source);
Findings check_utf16(const Source& source);
Findings check_binary_file(const Source& source);
Findings check_nul_byte(const Source& source);
Findings check_not_an_input(const Source& source);

Findings check_labelled_atom(const Source& source);
Findings check_numbered_atom(const Source& source);
Findings check_charge_line(const Source& source);
Findings check_ended_atoms(const Source& source);
Findings check_element_like_constraint(const Source& source);
Findings check_angle_read_as_atom(const Source& source);
Findings check_late_command(const Source& source);
Findings check_late_reference(const Source& source);
Findings check_no_charge_line(const Source& source);
Findings check_no_finite_coordinate(const Source& source);
Findings check_multiplicity_below_one(const Source& source);
Findings check_unknown_element(const Source& source);
Findings check_no_coordinates(const Source& source);
Findings check_reference_without_path(const Source& source);

Findings check_unclosed_list(const Source& source);
Findings check_trailing_text(const Source& source);
Findings check_empty_command(const Source& source);
Findings check_nameless_command(const Source& source);
Findings check_several_words(const Source& source);
Findings check_comment_like_command(const Source& source);
Findings check_similar_name(const Source& source);
Findings check_several_tasks(const Source& source);
Findings check_no_task(const Source& source);
Findings check_duplicate_assignment(const Source& source);
Findings check_duplicate_parameter(const Source& source);
Findings check_empty_entry(const Source& source);
Findings check_nameless_entry(const Source& source);
Findings check_unclosed_quote(const Source& source);
Findings check_cut_value(const Source& source);
Findings check_typographic_quote(const Source& source);
Findings check_odd_number(const Source& source);

Findings check_dropped_line(const Source& source);
Findings check_wrong_field_count(const Source& source);
Findings check_atom_number_below_one(const Source& source);
Findings check_repeated_atom_number(const Source& source);
Findings check_atom_number_too_large(const Source& source);
Findings check_no_scan_steps(const Source& source);
Findings check_no_finite_scan_value(const Source& source);

Findings check_quoted_path(const Source& source);
Findings check_missing_file(const Source& source);
Findings check_unreadable_file(const Source& source);
Findings check_no_frame(const Source& source);
Findings check_extra_trajectory(const Source& source);

Findings check_other_meaning(const Source& source);
Findings check_large_change(const Source& source);
Findings check_touching_columns(const Source& source);
Findings check_small_change(const Source& source);

Findings check_impossible_multiplicity(const Source& source);
Findings check_too_close_atoms(const Source& source);

}  // namespace kelp::input::quill::lint

#endif  // KELP_INPUT_QUILL_LINT_CHECKS_CHECKS_HPP
