#include <cmath>
#include <cstddef>
#include <limits>
#include <string>

#include "properties/as_written.hpp"
#include "properties/expressible.hpp"
#include "properties/obvious_writer.hpp"
#include "properties/reading.hpp"
#include "properties/violation.hpp"
#include "properties/writing.hpp"
#include "support/comparison.hpp"

namespace kelp::input::quill {

namespace {

bool is_same_special(double left, double right) {
  if (std::isnan(left) || std::isnan(right))
    return std::isnan(left) && std::isnan(right) && std::signbit(left) == std::signbit(right);
  return left == right && std::signbit(left) == std::signbit(right);
}

/// Six decimals are within half a millionth; beyond 2^32 the doubles are further apart than that,
/// and reading may give a neighbour.
bool is_near(double written, double read) {
  if (!std::isfinite(written) || !std::isfinite(read)) return is_same_special(written, read);
  const double magnitude = std::fabs(written);
  const double spacing =
      std::nextafter(magnitude, std::numeric_limits<double>::infinity()) - magnitude;
  return std::fabs(written - read) <= 5e-7 + spacing && std::signbit(written) == std::signbit(read);
}

/// Takes over from `read` what is near enough to count as equal.
void adopt_coordinate(double& written, double read) {
  if (is_near(written, read)) written = read;
}

void adopt_near_numbers(QuillInput& written, const QuillInput& read) {
  auto& atoms = written.geometry.atoms;
  for (std::size_t i = 0; i < atoms.size() && i < read.geometry.atoms.size(); ++i) {
    adopt_coordinate(atoms[i].x, read.geometry.atoms[i].x);
    adopt_coordinate(atoms[i].y, read.geometry.atoms[i].y);
    adopt_coordinate(atoms[i].z, read.geometry.atoms[i].z);
  }
  auto& lines = written.post_commands;
  for (std::size_t i = 0; i < lines.size() && i < read.post_commands.size(); ++i) {
    const auto& value = read.post_commands[i].scan_value;
    if (lines[i].scan_value && value &&
        obvious::six_digits(*lines[i].scan_value) == obvious::six_digits(*value))
      lines[i].scan_value = value;
  }
}

}  // namespace

void check_round_trip(const QuillInput& document, Reader* read) {
  const std::string text = document.to_string();
  const ParseResult result = read(text);
  check_result(text, result);

  QuillInput expected = as_written(document);
  const bool is_expected_back = !reason_not_to_read_back(expected);
  adopt_near_numbers(expected, result.input);
  require((result.input == expected) == is_expected_back,
          is_expected_back ? "what is written reads back"
                           : "only what does not read back is an exception",
          text);
  require(!is_expected_back || result.input.to_string() == text,
          "what is read back is written again as the same bytes", text);
}

}  // namespace kelp::input::quill
