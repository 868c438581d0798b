#include <algorithm>
#include <cstddef>

#include "properties/obvious_elements.hpp"
#include "properties/obvious_reader.hpp"
#include "properties/obvious_text.hpp"

namespace kelp::input::quill::obvious {

namespace {

std::string line_warning(std::uint64_t line_number, const std::string& message) {
  return "Line " + std::to_string(line_number) + ": " + message;
}

/// The pieces between the commas outside quotes, trimmed, with the empty ones.
std::vector<std::string> pieces_of(std::string_view text) {
  constexpr char none = '\0';
  std::vector<std::string> pieces(1);
  char open_quote = none;
  for (const char c : text) {
    if (c == ',' && open_quote == none) {
      pieces.emplace_back();
      continue;
    }
    pieces.back() += c;
    if (c != '\'' && c != '"') continue;
    if (open_quote == none)
      open_quote = c;
    else if (open_quote == c)
      open_quote = none;
  }
  for (std::string& piece : pieces) piece = trim(piece);
  return pieces;
}

HeaderLine parameter_list_line(const std::string& body, std::size_t open,
                               std::uint64_t line_number) {
  HeaderLine read;
  read.command.name = trim(body.substr(0, open));
  read.command.kind = HeaderCommandKind::ParameterList;
  const std::string after_open = body.substr(open + 1);
  const std::size_t close = after_open.rfind(')');
  read.command.parameters = parameter_list(after_open.substr(0, close));
  if (close == std::string::npos) {
    read.warnings.push_back(line_warning(line_number, "missing ')' in QUILL header command"));
  } else if (!trim(after_open.substr(close + 1)).empty()) {
    read.warnings.push_back(
        line_warning(line_number, "ignored trailing text after QUILL header command"));
  }
  return read;
}

HeaderLine body_line(const std::string& body, std::uint64_t line_number) {
  const std::size_t open = std::min(body.find('('), body.size());
  const std::size_t equals = std::min(body.find('='), body.size());
  if (open < equals) return parameter_list_line(body, open, line_number);
  HeaderLine read;
  read.command.name = trim(body.substr(0, equals));
  if (equals < body.size()) {
    read.command.kind = HeaderCommandKind::Assignment;
    read.command.value = unquoted(body.substr(equals + 1));
  }
  return read;
}

/// The integers of the tokens from `first` to before `last`, if they all are integers.
std::optional<std::vector<std::int32_t>> integers(const std::vector<std::string>& tokens,
                                                  std::size_t first, std::size_t last) {
  std::vector<std::int32_t> values;
  for (std::size_t i = first; i < last; ++i) {
    const std::optional<int> value = integer(tokens[i]);
    if (!value) return std::nullopt;
    values.push_back(*value);
  }
  return values;
}

std::optional<PostCommand> constraint(PostCommandKind kind, const std::string& line) {
  const std::vector<std::string> tokens = words(line);
  const auto numbers = integers(tokens, 1, tokens.size());
  if (!numbers) return std::nullopt;
  return PostCommand(kind, *numbers, std::nullopt, std::nullopt, "", line);
}

std::optional<PostCommand> scan(const std::string& line) {
  const std::vector<std::string> tokens = words(line);
  const auto numbers = integers(tokens, 1, tokens.size() - 2);
  const std::optional<double> value = number(tokens[tokens.size() - 2]);
  const std::optional<int> steps = integer(tokens[tokens.size() - 1]);
  if (!numbers || !value || !steps) return std::nullopt;
  return PostCommand(PostCommandKind::Scan, *numbers, *value, *steps, "", line);
}

}  // namespace

HeaderLine header_line(std::string_view line, std::uint64_t line_number) {
  std::string body = trim(line);
  if (!body.empty() && body[0] == '#') body = trim(body.substr(1));
  if (body.empty())
    return {HeaderCommand(), {line_warning(line_number, "empty QUILL header command")}};
  HeaderLine read = body_line(body, line_number);
  if (read.command.name.empty())
    read.warnings.push_back(line_warning(line_number, "QUILL header command has no name"));
  return read;
}

std::vector<CommandParameter> parameter_list(std::string_view text) {
  std::vector<CommandParameter> parameters;
  for (const std::string& piece : pieces_of(text)) {
    const std::size_t equals = std::min(piece.find('='), piece.size());
    CommandParameter parameter(trim(piece.substr(0, equals)));
    if (equals < piece.size()) parameter.value = unquoted(piece.substr(equals + 1));
    if (!parameter.name.empty()) parameters.push_back(parameter);
  }
  return parameters;
}

std::string unquoted(std::string_view value) {
  std::string trimmed = trim(value);
  if (trimmed.size() < 2) return trimmed;
  const std::string ends = {trimmed.front(), trimmed.back()};
  if (ends != "''" && ends != "\"\"") return trimmed;
  return trimmed.substr(1, trimmed.size() - 2);
}

std::optional<std::pair<int, int>> charge_line(std::string_view line) {
  const std::vector<std::string> tokens = words(line);
  if (tokens.size() != 2 || !integer(tokens[0]) || !integer(tokens[1])) return std::nullopt;
  return std::pair(*integer(tokens[0]), *integer(tokens[1]));
}

std::optional<std::pair<std::string, std::string>> reference_line(std::string_view line) {
  const std::vector<std::string> tokens = words(line);
  if (tokens.empty()) return std::nullopt;
  const std::string keyword = upper(tokens[0]);
  if (keyword != "XYZ" && keyword != "XYZTRAJ") return std::nullopt;
  return std::pair(keyword, rest_after_first_word(trim(line)));
}

std::optional<AtomRecord> atom_line(std::string_view line) {
  const std::vector<std::string> tokens = words(line);
  if (tokens.size() != 4 || !std::all_of(tokens[0].begin(), tokens[0].end(), is_letter))
    return std::nullopt;
  if (!number(tokens[1]) || !number(tokens[2]) || !number(tokens[3])) return std::nullopt;
  return AtomRecord{normal_symbol(tokens[0]), *number(tokens[1]), *number(tokens[2]),
                    *number(tokens[3])};
}

bool is_post_line_with_keyword(std::string_view line) {
  const std::vector<std::string> tokens = words(line);
  if (tokens.empty()) return false;
  const std::string keyword = upper(tokens[0]);
  const std::size_t count = tokens.size();
  return (keyword == "C" && count == 2) || (keyword == "B" && count == 3) ||
         (keyword == "A" && count == 4) || (keyword == "D" && count == 5) ||
         (keyword == "S" && count >= 5 && count <= 7) || (keyword == "POST" && count >= 2);
}

std::optional<PostCommand> post_line(std::string_view line) {
  const std::string trimmed = trim(line);
  if (trimmed.empty()) return std::nullopt;
  if (!is_post_line_with_keyword(trimmed))
    return PostCommand(PostCommandKind::Raw, {}, std::nullopt, std::nullopt, "", trimmed);
  const std::string keyword = upper(words(trimmed)[0]);
  if (keyword == "C") return constraint(PostCommandKind::AtomConstraint, trimmed);
  if (keyword == "B") return constraint(PostCommandKind::BondConstraint, trimmed);
  if (keyword == "A") return constraint(PostCommandKind::AngleConstraint, trimmed);
  if (keyword == "D") return constraint(PostCommandKind::DihedralConstraint, trimmed);
  if (keyword == "S") return scan(trimmed);
  return PostCommand(PostCommandKind::PostFile, {}, std::nullopt, std::nullopt,
                     rest_after_first_word(trimmed), trimmed);
}

}  // namespace kelp::input::quill::obvious
