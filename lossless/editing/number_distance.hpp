#ifndef KELP_INPUT_QUILL_LOSSLESS_EDITING_NUMBER_DISTANCE_HPP
#define KELP_INPUT_QUILL_LOSSLESS_EDITING_NUMBER_DISTANCE_HPP

namespace kelp::input::quill::lossless {

/// Returns whether two numbers are the same in every bit. The payload of a NaN does not count,
/// since no text can hold it.
bool is_equal_number(double left, double right);

/// Returns the distance of two numbers that are not equal: infinite if one of them is infinite or
/// not a number.
double distance(double left, double right);

}  // namespace kelp::input::quill::lossless

#endif  // KELP_INPUT_QUILL_LOSSLESS_EDITING_NUMBER_DISTANCE_HPP
