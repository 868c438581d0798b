#include "reader/header_line.hpp"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "kelp/core/text.hpp"
#include "reader/diagnostics.hpp"

namespace kelp::input::quill {

namespace text = kelp::core::text;

namespace {

constexpr std::size_t npos = std::string_view::npos;

constexpr bool is_quote(char c) { return c == '"' || c == '\''; }

/// Returns the position of the first comma outside quotes at or after `start`, or the end.
std::size_t find_separator(std::string_view list, std::size_t start) {
  std::size_t i = start;
  for (; i < list.size() && list[i] != ','; ++i) {
    if (!is_quote(list[i])) continue;
    i = list.find(list[i], i + 1);  // the other kind of quote means nothing until this one closes
    if (i == npos) return list.size();
  }
  return i;
}

/// parameter = name [ "=" value ] ; the first "=" separates, within quotes too
void append_parameter(std::string_view piece, std::vector<CommandParameter>& parameters) {
  std::string trimmed = text::trim(piece);
  const std::string_view view = trimmed;
  const std::size_t equals = view.find('=');
  if (equals == npos) {
    if (!trimmed.empty()) parameters.emplace_back(std::move(trimmed));
    return;
  }
  std::string name = text::trim(view.substr(0, equals));
  if (!name.empty())
    parameters.emplace_back(std::move(name), unquote_value(std::string(view.substr(equals + 1))));
}

HeaderCommand parse_flag(std::string_view body) {
  return HeaderCommand(std::string(body), HeaderCommandKind::Flag);
}

HeaderCommand parse_assignment(std::string_view body, std::size_t equals) {
  return HeaderCommand(text::trim(body.substr(0, equals)), HeaderCommandKind::Assignment,
                       unquote_value(std::string(body.substr(equals + 1))));
}

/// `body` ends in no blank, so whatever follows the parenthesis is text.
HeaderCommand parse_parameterised(std::string_view body, std::size_t open,
                                  std::vector<std::string>& warnings, std::uint64_t line_number) {
  HeaderCommand command(text::trim(body.substr(0, open)), HeaderCommandKind::ParameterList);
  const std::size_t close = body.rfind(')');
  if (close == npos || close < open) {
    warnings.push_back(line_diagnostic(line_number, message::missing_parenthesis));
    command.parameters = parse_parameter_list(body.substr(open + 1));
    return command;
  }
  command.parameters = parse_parameter_list(body.substr(open + 1, close - open - 1));
  if (close + 1 < body.size()) {
    warnings.push_back(line_diagnostic(line_number, message::trailing_text));
  }
  return command;
}

/// Returns the position of the first "=" or "(", or the end.
std::size_t find_decisive(std::string_view body) {
  const auto is_decisive = [](char c) { return c == '=' || c == '('; };
  return static_cast<std::size_t>(std::find_if(body.begin(), body.end(), is_decisive) -
                                  body.begin());
}

/// body = name                      a flag
///      / name "=" value            an assignment
///      / name "(" list ")"         a parameter list
/// Whichever of "=" and "(" comes first decides.
HeaderCommand parse_body(std::string_view body, std::vector<std::string>& warnings,
                         std::uint64_t line_number) {
  const std::size_t decisive = find_decisive(body);
  if (decisive == body.size()) return parse_flag(body);
  if (body[decisive] == '=') return parse_assignment(body, decisive);
  return parse_parameterised(body, decisive, warnings, line_number);
}

HeaderCommand parse_named_body(std::string_view body, std::vector<std::string>& warnings,
                               std::uint64_t line_number) {
  HeaderCommand command = parse_body(body, warnings, line_number);
  if (command.name.empty()) {
    warnings.push_back(line_diagnostic(line_number, message::nameless_command));
  }
  return command;
}

}  // namespace

HeaderCommand parse_header_command_line(std::string_view line, std::vector<std::string>& warnings,
                                        std::uint64_t line_number) {
  const std::string trimmed = text::trim(line);
  std::string_view after_hash = trimmed;
  if (!after_hash.empty() && after_hash.front() == '#') after_hash.remove_prefix(1);
  const std::string body = text::trim(after_hash);
  if (body.empty()) {
    warnings.push_back(line_diagnostic(line_number, message::empty_header_command));
    return HeaderCommand();
  }
  return parse_named_body(body, warnings, line_number);
}

std::vector<CommandParameter> parse_parameter_list(std::string_view list) {
  std::vector<CommandParameter> parameters;
  for (std::size_t start = 0; start <= list.size();) {
    const std::size_t end = find_separator(list, start);
    append_parameter(list.substr(start, end - start), parameters);
    start = end + 1;
  }
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
