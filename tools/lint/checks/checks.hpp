#ifndef KELP_INPUT_QUILL_LINT_CHECKS_CHECKS_HPP
#define KELP_INPUT_QUILL_LINT_CHECKS_CHECKS_HPP

#include "lint/collector.hpp"
#include "lint/source.hpp"

// One function for each rule, each in its own file. Each adds what it finds in a text, in the order
// of the places.

namespace kelp::input::quill::lint {

void check_byte_order_mark(const Source& source, Collector& findings);
void check_lone_carriage_return(const Source& source, Collector& findings);
void check_mixed_line_ends(const Source& source, Collector& findings);
void check_unicode_blank(const Source& source, Collector& findings);
void check_invisible_character(const Source& source, Collector& findings);
void check_utf16(const Source& source, Collector& findings);
void check_binary_file(const Source& source, Collector& findings);
void check_nul_byte(const Source& source, Collector& findings);
void check_not_an_input(const Source& source, Collector& findings);

void check_labelled_atom(const Source& source, Collector& findings);
void check_numbered_atom(const Source& source, Collector& findings);
void check_charge_line(const Source& source, Collector& findings);
void check_ended_atoms(const Source& source, Collector& findings);
void check_element_like_constraint(const Source& source, Collector& findings);
void check_angle_read_as_atom(const Source& source, Collector& findings);
void check_late_command(const Source& source, Collector& findings);
void check_late_reference(const Source& source, Collector& findings);
void check_no_charge_line(const Source& source, Collector& findings);
void check_no_finite_coordinate(const Source& source, Collector& findings);
void check_multiplicity_below_one(const Source& source, Collector& findings);
void check_unknown_element(const Source& source, Collector& findings);
void check_no_coordinates(const Source& source, Collector& findings);
void check_reference_without_path(const Source& source, Collector& findings);

void check_unclosed_list(const Source& source, Collector& findings);
void check_trailing_text(const Source& source, Collector& findings);
void check_empty_command(const Source& source, Collector& findings);
void check_nameless_command(const Source& source, Collector& findings);
void check_several_words(const Source& source, Collector& findings);
void check_comment_like_command(const Source& source, Collector& findings);
void check_similar_name(const Source& source, Collector& findings);
void check_several_tasks(const Source& source, Collector& findings);
void check_no_task(const Source& source, Collector& findings);
void check_duplicate_assignment(const Source& source, Collector& findings);
void check_duplicate_parameter(const Source& source, Collector& findings);
void check_empty_entry(const Source& source, Collector& findings);
void check_nameless_entry(const Source& source, Collector& findings);
void check_unclosed_quote(const Source& source, Collector& findings);
void check_cut_value(const Source& source, Collector& findings);
void check_typographic_quote(const Source& source, Collector& findings);
void check_odd_number(const Source& source, Collector& findings);

void check_dropped_line(const Source& source, Collector& findings);
void check_wrong_field_count(const Source& source, Collector& findings);
void check_atom_number_below_one(const Source& source, Collector& findings);
void check_repeated_atom_number(const Source& source, Collector& findings);
void check_atom_number_too_large(const Source& source, Collector& findings);
void check_no_scan_steps(const Source& source, Collector& findings);
void check_no_finite_scan_value(const Source& source, Collector& findings);

void check_quoted_path(const Source& source, Collector& findings);
void check_missing_file(const Source& source, Collector& findings);
void check_unreadable_file(const Source& source, Collector& findings);
void check_no_frame(const Source& source, Collector& findings);
void check_extra_trajectory(const Source& source, Collector& findings);

void check_other_meaning(const Source& source, Collector& findings);
void check_large_change(const Source& source, Collector& findings);
void check_touching_columns(const Source& source, Collector& findings);
void check_small_change(const Source& source, Collector& findings);

void check_impossible_multiplicity(const Source& source, Collector& findings);
void check_too_close_atoms(const Source& source, Collector& findings);

}  // namespace kelp::input::quill::lint

#endif  // KELP_INPUT_QUILL_LINT_CHECKS_CHECKS_HPP
