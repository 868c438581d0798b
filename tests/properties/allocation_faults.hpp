#ifndef KELP_INPUT_QUILL_TESTS_PROPERTIES_ALLOCATION_FAULTS_HPP
#define KELP_INPUT_QUILL_TESTS_PROPERTIES_ALLOCATION_FAULTS_HPP

#include <cstdint>
#include <string_view>

#include "properties/edit_operation.hpp"

namespace kelp::input::quill {

/// The first byte picks an operation: an edit, a call on a builder, reading, writing or copying.
/// The rest is what it works on. Makes its allocation number `failing`, counted from 1, fail. If
/// that is one more than it makes, it has succeeded, and the answer is true. If not, it has run out
/// of memory: then nothing leaks, and what remains is in a state that the operation allows.
/// Throws a Violation. A program that calls this links tests/support/failing_allocator.cpp.
bool survives_fault(std::string_view bytes, std::uint64_t failing);

/// The same for one edit of a document.
bool edit_survives_fault(const EditOperation& operation, const QuillInput& before,
                         std::uint64_t failing, std::string_view bytes);

/// The same with the first byte as the number of the allocation, and after it a run without a
/// fault, which has to succeed.
void check_allocation_fault(std::string_view bytes);

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_TESTS_PROPERTIES_ALLOCATION_FAULTS_HPP
