#ifndef KELP_INPUT_QUILL_TESTS_PROPERTIES_VIOLATION_HPP
#define KELP_INPUT_QUILL_TESTS_PROPERTIES_VIOLATION_HPP

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace kelp::input::quill {

/// Thrown by a check that does not hold. A fuzz target lets it end the process, which libFuzzer
/// records as a finding; a test reports what() as its failure.
class Violation : public std::logic_error {
 public:
  using std::logic_error::logic_error;
};

/// Throws a Violation that names the property and shows the bytes of what it was checked on, unless
/// the property holds.
void require(bool holds, std::string_view property, std::string_view subject);

/// Returns how many times the program has called require().
std::uint64_t statements_checked();

/// Returns `bytes` as one line of printable characters.
std::string printable(std::string_view bytes);

}  // namespace kelp::input::quill

#endif  // KELP_INPUT_QUILL_TESTS_PROPERTIES_VIOLATION_HPP
