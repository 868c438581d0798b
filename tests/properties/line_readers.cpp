#include "properties/line_readers.hpp"

#include <string>
#include <vector>

#include "properties/obvious_reader.hpp"
#include "properties/obvious_text.hpp"
#include "properties/violation.hpp"
#include "reader/coordinate_lines.hpp"
#include "reader/header_line.hpp"
#include "reader/post_line.hpp"
#include "support/comparison.hpp"
#include "support/read_line.hpp"

namespace kelp::input::quill {

namespace {

void check_header_line(std::string_view line, std::string_view expected_line) {
  constexpr std::uint64_t line_number = 10203;
  std::vector<std::string> warnings = {"one from before"};
  const HeaderCommand command = parse_header_command_line(line, warnings, line_number);
  const obvious::HeaderLine expected = obvious::header_line(expected_line, line_number);
  std::vector<std::string> expected_warnings = expected.warnings;
  expected_warnings.insert(expected_warnings.begin(), "one from before");
  require(command == expected.command, "the header command is right", line);
  require(warnings == expected_warnings, "the warnings of the header line are right", line);
  require(parse_parameter_list(line) == obvious::parameter_list(expected_line),
          "the parameter list is right", line);
  require(unquote_value(std::string(line)) == obvious::unquoted(expected_line),
          "the value is right", line);
}

void check_charge_line(std::string_view line, std::string_view expected_line) {
  const auto numbers = parse_charge_and_multiplicity(line);
  const auto expected = obvious::charge_line(expected_line);
  require(numbers.has_value() == expected.has_value(), "charge lines are known", line);
  require(
      !numbers || (numbers->charge == expected->first && numbers->multiplicity == expected->second),
      "charge and multiplicity are right", line);
}

void check_reference_line(std::string_view line, std::string_view expected_line) {
  std::string keyword = "untouched keyword";
  std::string path = "untouched path";
  const bool is_reference = parse_xyz_reference(line, keyword, path);
  const auto expected = obvious::reference_line(expected_line);
  require(is_reference == expected.has_value(), "reference lines are known", line);
  require(keyword == (expected ? expected->first : "untouched keyword"), "the keyword is right",
          line);
  require(path == (expected ? expected->second : "untouched path"), "the path is right", line);
  require(rest_after_first_word(line) == obvious::rest_after_first_word(expected_line),
          "the rest after the first word is right", line);
}

}  // namespace

void check_line_readers(std::string_view line) { check_line_readers(line, line); }

void check_line_readers(std::string_view line, std::string_view expected) {
  check_header_line(line, expected);
  check_charge_line(line, expected);
  check_reference_line(line, expected);
  require(read_atom_line(line) == obvious::atom_line(expected), "the atom is right", line);
  require(read_post_line(line) == obvious::post_line(expected), "the post command is right", line);
}

}  // namespace kelp::input::quill
