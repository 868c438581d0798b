#include "reader/diagnostics.hpp"

#include <charconv>
#include <cstddef>
#include <system_error>

namespace kelp::input::quill {

namespace {

constexpr std::string_view prefix = "Line ";
constexpr std::string_view separator = ": ";

bool begins_with(std::string_view text, std::string_view begin) {
  return text.substr(0, begin.size()) == begin;
}

}  // namespace

std::string line_diagnostic(std::uint64_t line_number, std::string_view message) {
  std::string text(prefix);
  text += std::to_string(line_number);  // unlike a stream, to_string does not group digits
  text += separator;
  text += message;
  return text;
}

DiagnosticParts split_diagnostic(std::string_view diagnostic) {
  if (!begins_with(diagnostic, prefix)) return {std::nullopt, diagnostic};
  std::string_view rest = diagnostic.substr(prefix.size());
  std::uint64_t line = 0;
  const auto [end, error] = std::from_chars(rest.data(), rest.data() + rest.size(), line);
  rest.remove_prefix(static_cast<std::size_t>(end - rest.data()));
  if (error != std::errc() || !begins_with(rest, separator)) return {std::nullopt, diagnostic};
  return {line, rest.substr(separator.size())};
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
