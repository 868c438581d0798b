#ifndef KELP_INPUT_QUILL_EDIT_SUPPORT_NUMBER_CHANGE_HPP
#define KELP_INPUT_QUILL_EDIT_SUPPORT_NUMBER_CHANGE_HPP

namespace kelp::input::quill::edit_support {

/// Whether two numbers are equal to the bit, the payload of a NaN aside: no text can hold it.
bool is_same_number(double left, double right);

/// Returns how far two numbers that are not the same are apart: infinitely when one of them is
/// infinite or not a number.
double distance(double left, double right);

}  // namespace kelp::input::quill::edit_support

#endif  // KELP_INPUT_QUILL_EDIT_SUPPORT_NUMBER_CHANGE_HPP
