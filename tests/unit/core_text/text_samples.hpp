#ifndef KELP_CORE_TEXT_TESTS_TEXT_SAMPLES_HPP
#define KELP_CORE_TEXT_TESTS_TEXT_SAMPLES_HPP

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// Many texts, the same in every run.

namespace kelp::core::text {

/// All 256 bytes, in order.
std::string every_byte();

/// Texts of 0 to 200 bytes, in which letters, digits, white space of every kind, NUL bytes and
/// bytes above 0x7F come in runs of any length.
std::vector<std::string> random_texts();

/// All texts of up to `longest` characters from `alphabet`, the empty one included.
std::vector<std::string> every_short_text(std::string_view alphabet, std::size_t longest);

/// A copy of a text in its own block of memory, with no byte after it: a tool that checks memory
/// finds any code that reads beyond the end.
class ExactBlock {
 public:
  explicit ExactBlock(std::string_view text) : bytes_(text.begin(), text.end()) {}

  std::string_view view() const { return {bytes_.data(), bytes_.size()}; }

 private:
  std::vector<char> bytes_;
};

}  // namespace kelp::core::text

#endif  // KELP_CORE_TEXT_TESTS_TEXT_SAMPLES_HPP
