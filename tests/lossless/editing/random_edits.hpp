#ifndef KELP_INPUT_QUILL_TESTS_LOSSLESS_EDITING_RANDOM_EDITS_HPP
#define KELP_INPUT_QUILL_TESTS_LOSSLESS_EDITING_RANDOM_EDITS_HPP

#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "lossless/properties/edits.hpp"

namespace kelp::input::quill::lossless {

/// Random texts and edits. The same seed gives the same ones on every system.
class RandomEdits {
 public:
  explicit RandomEdits(std::uint32_t seed) : generator_(seed) {}

  /// A text of a few lines of every kind, usually in the order of the sections, with
  /// blank lines anywhere and any mixture of line ends.
  std::string text();

  /// One to three edits. Coordinates have six decimals and scan values six digits at most, so that
  /// the writer can hold them.
  std::vector<Edit> edits();

 private:
  std::size_t below(std::size_t limit) { return generator_() % limit; }
  bool one_in(std::size_t n) { return below(n) == 0; }

  template <typename T, std::size_t N>
  const T& any_of(const T (&items)[N]) {
    return items[below(N)];
  }

  std::string line(std::size_t section);
  std::string terminator();
  std::string command_name();
  std::string parameter_name();
  std::string value();
  std::string path();
  double coordinate();
  AtomRecord atom();
  PostCommand post_command();
  Edit header_edit();
  Edit geometry_edit();

  std::mt19937 generator_;
  bool has_crlf_ = false;
  bool has_mixed_ends_ = false;
};

}  // namespace kelp::input::quill::lossless

#endif  // KELP_INPUT_QUILL_TESTS_LOSSLESS_EDITING_RANDOM_EDITS_HPP
