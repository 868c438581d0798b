#include "reader/diagnostics.hpp"

namespace kelp::input::quill {

std::string line_diagnostic(std::uint64_t line_number, std::string_view message) {
  std::string text = "Line ";
  text += std::to_string(line_number);  // unlike a stream, to_string groups no digits
  text += ": ";
  text += message;
  return text;
}

std::string unknown_element_diagnostic(std::uint64_t line_number, std::string_view symbol) {
  std::string text = line_diagnostic(line_number, "unknown element symbol '");
  text += symbol;
  text += '\'';
  return text;
}

std::string open_failure(std::string_view path) {
  std::string text = "Failed to open QUILL input file: ";
  text += path;
  return text;
}

}  // namespace kelp::input::quill
