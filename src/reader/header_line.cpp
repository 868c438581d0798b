#include "reader/header_line.hpp"

#include <utility>

#include "kelp/core/text.hpp"
#include "reader/diagnostics.hpp"
#include "reader/header_pieces.hpp"

namespace kelp::input::quill {

namespace text = kelp::core::text;

namespace {

constexpr bool is_quote(char c) { return c == '"' || c == '\''; }

/// An entry without a name is dropped, with or without a value.
void append_parameter(const ParameterPieces& entry, std::vector<CommandParameter>& parameters) {
  std::string name = text::trim(entry.name);
  if (name.empty()) return;
  CommandParameter& parameter = parameters.emplace_back(std::move(name));
  if (entry.value) parameter.value = unquote_value(std::string(*entry.value));
}

HeaderCommand make_command(const HeaderPieces& pieces) {
  HeaderCommand command(text::trim(pieces.name), pieces.kind);
  if (pieces.kind == HeaderCommandKind::Assignment)
    command.value = unquote_value(std::string(pieces.value));
  if (pieces.kind == HeaderCommandKind::ParameterList)
    command.parameters = parse_parameter_list(pieces.list);
  return command;
}

}  // namespace

HeaderCommand parse_header_command_line(std::string_view line, std::vector<std::string>& warnings,
                                        std::uint64_t line_number) {
  const auto warn = [&](std::string_view message) {
    warnings.push_back(line_diagnostic(line_number, message));
  };
  const HeaderPieces pieces = find_header_pieces(line);
  HeaderCommand command = make_command(pieces);
  if (!pieces.is_closed) warn(message::missing_parenthesis);
  if (!pieces.trailing.empty()) warn(message::trailing_text);
  // Only a line with nothing in it is a flag without a name.
  if (command.name.empty()) {
    const bool is_empty = pieces.kind == HeaderCommandKind::Flag;
    warn(is_empty ? message::empty_header_command : message::nameless_command);
  }
  return command;
}

std::vector<CommandParameter> parse_parameter_list(std::string_view list) {
  std::vector<CommandParameter> parameters;
  for (ParameterEntries entries(list); !entries.at_end();)
    append_parameter(entries.next(), parameters);
  return parameters;
}

std::string unquote_value(std::string value) {
  value = text::trim(value);
  const bool is_quoted =
      value.size() >= 2 && value.front() == value.back() && is_quote(value.front());
  if (is_quoted) return value.substr(1, value.size() - 2);
  return value;
}

}  // namespace kelp::input::quill
