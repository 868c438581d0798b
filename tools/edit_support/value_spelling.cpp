#include "edit_support/value_spelling.hpp"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

#include "edit_support/document_difference.hpp"
#include "edit_support/part_words.hpp"
#include "kelp/input/quill/reader.hpp"
#include "kelp/input/quill/writer.hpp"

namespace kelp::input::quill::edit_support {

namespace {

constexpr std::size_t npos = std::string_view::npos;

/// Whether the header line that `written` gives is read as `meant`.
bool reads_back(const HeaderCommand& written, const HeaderCommand& meant) {
  const QuillInput found = parse_string(to_string(written)).input;
  return found.commands.size() == 1 && is_same(found.commands.front(), meant);
}

HeaderCommand assignment_of(std::string_view value) {
  return HeaderCommand("a", HeaderCommandKind::Assignment, std::string(value));
}

HeaderCommand list_of(const CommandParameter& parameter, ParameterPlace place) {
  HeaderCommand command("a", HeaderCommandKind::ParameterList, std::nullopt, {parameter});
  if (place == ParameterPlace::FollowedByOthers) command.parameters.emplace_back("b");
  return command;
}

bool reads_back(const CommandParameter& written, const CommandParameter& meant,
                ParameterPlace place) {
  return reads_back(list_of(written, place), list_of(meant, place));
}

std::string put_between(char quote, std::string_view value) {
  std::string out(1, quote);
  out += value;
  out += quote;
  return out;
}

/// The three ways to write a value, in the order of preference.
std::array<std::string, 3> candidates(std::string_view value) {
  const bool prefers_single = value.find('"') != npos && value.find('\'') == npos;
  const char first = prefers_single ? '\'' : '"';
  const char second = prefers_single ? '"' : '\'';
  return {std::string(value), put_between(first, value), put_between(second, value)};
}

template <typename Survives>
std::optional<std::string> first_candidate(std::string_view value, Survives survives) {
  for (std::string& candidate : candidates(value)) {
    if (survives(candidate)) return std::move(candidate);
  }
  return std::nullopt;
}

std::optional<std::string> find_parameter_spelling(const CommandParameter& parameter,
                                                   ParameterPlace place) {
  if (!parameter.value)
    return reads_back(parameter, parameter, place) ? std::optional<std::string>("") : std::nullopt;
  return first_candidate(*parameter.value, [&](const std::string& candidate) {
    return reads_back(CommandParameter(parameter.name, candidate), parameter, place);
  });
}

bool holds_line_break(std::string_view text) { return text.find('\n') != npos; }

std::string line_break_reason(const std::string& subject) {
  return subject + " holds a line break, and a header command is one line";
}

std::string value_reason(const std::string& subject, std::string_view value,
                         std::string_view circumstance) {
  if (holds_line_break(value)) return line_break_reason(subject);
  return subject +
         " cannot be spelled: it would read back otherwise as it stands, in double quotes and in "
         "single quotes" +
         std::string(circumstance);
}

std::string name_reason(const std::string& subject, std::string_view name,
                        std::string_view circumstance) {
  if (holds_line_break(name)) return line_break_reason(subject);
  return subject + " would not read back as it is" + std::string(circumstance);
}

/// To be said when the parameter alone could be written so, and only the next one is in the way.
std::string_view circumstance_of(const CommandParameter& parameter, ParameterPlace place) {
  const bool is_next_one_in_the_way = place == ParameterPlace::FollowedByOthers &&
                                      find_parameter_spelling(parameter, ParameterPlace::Last);
  return is_next_one_in_the_way ? " with another parameter after it" : "";
}

/// The name is to blame when it does not even read back with the plainest of values.
std::string parameter_reason(const CommandParameter& parameter, ParameterPlace place) {
  CommandParameter plain = parameter;
  if (plain.value) plain.value = "1";
  const std::string_view circumstance = circumstance_of(parameter, place);
  if (!reads_back(plain, plain, place)) {
    return name_reason("the parameter name " + quoted(parameter.name), parameter.name,
                       circumstance);
  }
  return value_reason(
      "the value " + quoted(*parameter.value) + " of parameter " + quoted(parameter.name),
      *parameter.value, circumstance);
}

void spell_parameters(SpelledCommand& spelled) {
  std::vector<CommandParameter>& parameters = spelled.command.parameters;
  for (std::size_t i = 0; i < parameters.size(); ++i) {
    const bool is_last = i + 1 == parameters.size();
    Spelling spelling = spell_parameter_value(
        parameters[i], is_last ? ParameterPlace::Last : ParameterPlace::FollowedByOthers);
    if (!spelling.text) {
      spelled.reasons.push_back(std::move(spelling.reason));
    } else if (parameters[i].value) {
      parameters[i].value = std::move(spelling.text);
    }
  }
}

void spell_assigned_value(SpelledCommand& spelled) {
  if (!spelled.command.value) {
    spelled.reasons.push_back("the assignment " + quoted(spelled.command.name) +
                              " has no value and would read back with an empty one");
    return;
  }
  Spelling spelling = spell_assignment_value(*spelled.command.value);
  if (spelling.text) {
    spelled.command.value = std::move(spelling.text);
  } else {
    spelled.reasons.push_back(std::move(spelling.reason));
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

/// What stands in the way when every value can be spelled and the line does not read back yet.
std::string line_reason(const HeaderCommand& command) {
  if (!is_known(command.kind)) return "the command " + quoted(command.name) + " is of unknown kind";
  if (!is_same(written_part(command), command)) {
    return "the command " + quoted(command.name) + " is " + words(command.kind) +
           " and holds a value or parameters that are not written with it";
  }
  return name_reason("the command name " + quoted(command.name), command.name, "");
}

}  // namespace

Spelling spell_assignment_value(std::string_view value) {
  const HeaderCommand meant = assignment_of(value);
  std::optional<std::string> text = first_candidate(value, [&](const std::string& candidate) {
    return reads_back(assignment_of(candidate), meant);
  });
  if (text) return {std::move(text), {}};
  return {std::nullopt, value_reason("the value " + quoted(value), value, "")};
}

Spelling spell_parameter_value(const CommandParameter& parameter, ParameterPlace place) {
  // A spelling that bears another parameter behind it is the better one for the last parameter too.
  std::optional<std::string> text =
      find_parameter_spelling(parameter, ParameterPlace::FollowedByOthers);
  if (!text && place == ParameterPlace::Last)
    text = find_parameter_spelling(parameter, ParameterPlace::Last);
  if (text) return {std::move(text), {}};
  return {std::nullopt, parameter_reason(parameter, place)};
}

SpelledCommand spell(const HeaderCommand& command) {
  SpelledCommand spelled{command, {}};
  if (command.kind == HeaderCommandKind::Assignment) spell_assigned_value(spelled);
  if (command.kind == HeaderCommandKind::ParameterList) spell_parameters(spelled);
  if (spelled.reasons.empty() && !reads_back(spelled.command, command))
    spelled.reasons.push_back(line_reason(command));
  return spelled;
}

SpelledDocument spell(const QuillInput& input) {
  SpelledDocument spelled{input, {}};
  for (HeaderCommand& command : spelled.document.commands) {
    SpelledCommand result = spell(command);
    command = std::move(result.command);
    std::move(result.reasons.begin(), result.reasons.end(), std::back_inserter(spelled.reasons));
  }
  return spelled;
}

}  // namespace kelp::input::quill::edit_support
