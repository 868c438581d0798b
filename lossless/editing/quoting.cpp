#include "kelp/input/quill/lossless/quoting.hpp"

#include <array>
#include <iterator>
#include <optional>
#include <string_view>
#include <utility>

#include "kelp/input/quill/lossless/equality.hpp"
#include "kelp/input/quill/reader.hpp"
#include "kelp/input/quill/writer.hpp"

namespace kelp::input::quill::lossless {

namespace {

constexpr std::size_t npos = std::string_view::npos;

using Piece = QuotingProblem::Piece;
using Reason = QuotingProblem::Reason;

/// Whether a parameter is the last of its list, and so can end in an unclosed quote.
enum class Place { BeforeOthers, Last };

/// Returns the command that a header line is read as, or nothing if there is not exactly one.
std::optional<HeaderCommand> only_command(const std::string& line) {
  QuillInput found = parse_string(line).input;
  if (found.commands.size() != 1) return std::nullopt;
  return std::move(found.commands.front());
}

/// Returns whether the header line that `written` gives is read as `wanted`.
bool reads_back(const HeaderCommand& written, const HeaderCommand& wanted) {
  const std::optional<HeaderCommand> found = only_command(to_string(written));
  return found && is_equal(*found, wanted);
}

HeaderCommand assignment_of(std::string_view value) {
  return HeaderCommand("a", HeaderCommandKind::Assignment, std::string(value));
}

HeaderCommand list_of(CommandParameter parameter, Place place) {
  HeaderCommand command("a", HeaderCommandKind::ParameterList);
  command.parameters.push_back(std::move(parameter));
  if (place == Place::BeforeOthers) command.parameters.emplace_back("b");
  return command;
}

/// A value may be long, so there are only as many copies of it at a time as are needed.
bool reads_back(CommandParameter written, const CommandParameter& wanted, Place place) {
  const std::string line = to_string(list_of(std::move(written), place));
  const std::optional<HeaderCommand> found = only_command(line);
  return found && is_equal(*found, list_of(wanted, place));
}

/// The same for a value that is assigned.
bool reads_back(const std::string& written, const std::string& wanted) {
  const std::string line = to_string(assignment_of(written));
  const std::optional<HeaderCommand> found = only_command(line);
  return found && is_equal(*found, assignment_of(wanted));
}

std::string put_between(char quote, std::string_view value) {
  std::string out(1, quote);
  out += value;
  out += quote;
  return out;
}

/// The quotes to try around a value, after none at all.
std::array<char, 2> quotes_for(std::string_view value) {
  const bool prefers_single = value.find('"') != npos && value.find('\'') == npos;
  if (prefers_single) return {'\'', '"'};
  return {'"', '\''};
}

/// Returns the first way to write a value that survives. Only one of them is in memory at a time.
template <typename Survives>
std::optional<std::string> first_candidate(std::string_view value, Survives survives) {
  std::string candidate(value);
  if (survives(candidate)) return candidate;
  for (const char mark : quotes_for(value)) {
    candidate = put_between(mark, value);
    if (survives(candidate)) return candidate;
  }
  return std::nullopt;
}

/// Returns how to write the value of a parameter, the empty text if it has no value, or nothing
/// when it cannot be written. The name counts, too: a quote in it changes the effect of one in the
/// value.
std::optional<std::string> find_value_text(const CommandParameter& parameter, Place place) {
  if (!parameter.value)
    return reads_back(parameter, parameter, place) ? std::optional<std::string>("") : std::nullopt;
  return first_candidate(*parameter.value, [&](const std::string& candidate) {
    return reads_back(CommandParameter(parameter.name, candidate), parameter, place);
  });
}

Reason or_line_break(std::string_view text, Reason reason) {
  return text.find('\n') == npos ? reason : Reason::LineBreak;
}

/// The problem is the name when even the simplest value does not make the parameter read back.
QuotingProblem problem_of(const CommandParameter& parameter, Place place) {
  CommandParameter plain = parameter;
  if (plain.value) plain.value = "1";
  QuotingProblem problem;
  problem.name = parameter.name;
  if (!reads_back(plain, plain, place)) {
    problem.piece = Piece::ParameterName;
    problem.reason = or_line_break(parameter.name, Reason::ReadDifferently);
  } else {
    problem.piece = Piece::ParameterValue;
    problem.value = *parameter.value;
    problem.reason = or_line_break(problem.value, Reason::NoQuotesHelp);
  }
  problem.is_due_to_next_parameter = problem.reason != Reason::LineBreak &&
                                     place == Place::BeforeOthers &&
                                     find_value_text(parameter, Place::Last).has_value();
  return problem;
}

void quote_parameter(CommandParameter& parameter, Place place,
                     std::vector<QuotingProblem>& problems) {
  // A text that can have another parameter after it is the better choice for the last one, too.
  std::optional<std::string> text = find_value_text(parameter, Place::BeforeOthers);
  if (!text && place == Place::Last) text = find_value_text(parameter, Place::Last);
  if (!text) {
    problems.push_back(problem_of(parameter, place));
  } else if (parameter.value) {
    parameter.value = std::move(text);
  }
}

void quote_parameters(QuotedCommand& quoted) {
  std::vector<CommandParameter>& parameters = quoted.command.parameters;
  for (std::size_t i = 0; i < parameters.size(); ++i) {
    const bool is_last = i + 1 == parameters.size();
    quote_parameter(parameters[i], is_last ? Place::Last : Place::BeforeOthers, quoted.problems);
  }
}

void quote_assigned_value(QuotedCommand& quoted) {
  std::optional<std::string>& value = quoted.command.value;
  if (!value) {
    quoted.problems.push_back({Piece::Command, Reason::NoValue, quoted.command.name});
    return;
  }
  std::optional<std::string> text = first_candidate(
      *value, [&](const std::string& candidate) { return reads_back(candidate, *value); });
  if (text) {
    value = std::move(text);
  } else {
    quoted.problems.push_back({Piece::CommandValue, or_line_break(*value, Reason::NoQuotesHelp),
                               quoted.command.name, *value});
  }
}

/// The command without the members that its kind does not write.
HeaderCommand written_part(const HeaderCommand& command) {
  HeaderCommand part(command.name, command.kind);
  if (command.kind == HeaderCommandKind::Assignment) part.value = command.value;
  if (command.kind == HeaderCommandKind::ParameterList) part.parameters = command.parameters;
  return part;
}

bool is_known(HeaderCommandKind kind) {
  return kind == HeaderCommandKind::Flag || kind == HeaderCommandKind::Assignment ||
         kind == HeaderCommandKind::ParameterList;
}

/// Whether every value of a command survives without quotes, the last one also with another
/// parameter after it. For nearly every command, this makes a check of each single value
/// unnecessary.
bool needs_no_quotes(const HeaderCommand& command) {
  if (!reads_back(command, command)) return false;
  if (command.kind != HeaderCommandKind::ParameterList || command.parameters.empty()) return true;
  const CommandParameter& last = command.parameters.back();
  return reads_back(last, last, Place::BeforeOthers);
}

/// The problem when every value can be written but the line is still read differently.
QuotingProblem problem_of(const HeaderCommand& command) {
  QuotingProblem problem;
  problem.name = command.name;
  problem.kind = command.kind;
  if (!is_known(command.kind)) {
    problem.reason = Reason::UnknownKind;
  } else if (!is_equal(written_part(command), command)) {
    problem.reason = Reason::UnusedMembers;
  } else {
    problem.piece = Piece::CommandName;
    problem.reason = or_line_break(command.name, Reason::ReadDifferently);
  }
  return problem;
}

}  // namespace

QuotedCommand quote(const HeaderCommand& command) {
  QuotedCommand quoted{command, {}};
  if (needs_no_quotes(command)) return quoted;
  if (command.kind == HeaderCommandKind::Assignment) quote_assigned_value(quoted);
  if (command.kind == HeaderCommandKind::ParameterList) quote_parameters(quoted);
  if (quoted.problems.empty() && !reads_back(quoted.command, command))
    quoted.problems.push_back(problem_of(command));
  return quoted;
}

QuotedDocument quote(const QuillInput& input) {
  QuotedDocument quoted;
  quoted.document.geometry = input.geometry;
  quoted.document.post_commands = input.post_commands;
  quoted.document.commands.reserve(input.commands.size());
  for (const HeaderCommand& command : input.commands) {
    QuotedCommand result = quote(command);
    quoted.document.commands.push_back(std::move(result.command));
    std::move(result.problems.begin(), result.problems.end(), std::back_inserter(quoted.problems));
  }
  return quoted;
}

}  // namespace kelp::input::quill::lossless
