#include "lossless_edit/wording.hpp"

#include <charconv>
#include <cstddef>
#include <optional>

#include "lossless_edit/expected_lines.hpp"
#include "model/post_line_shapes.hpp"

namespace kelp::input::quill::lossless_edit {

namespace {

constexpr std::size_t longest_number =
    32;  // the shortest text of a double has at most 24 characters

constexpr std::string_view absent = "absent";
constexpr std::string_view unknown_kind = "of unknown kind";

const PostLineShape* find_words(PostCommandKind kind) {
  return kind == PostCommandKind::Raw ? &raw_line_shape : find_post_line_shape(kind);
}

std::string with_article(PostCommandKind kind) {
  const PostLineShape* shape = find_words(kind);
  if (shape == nullptr) return "a " + std::string(noun_of(kind));
  std::string text(shape->article);
  if (!text.empty()) text += ' ';
  return text += shape->noun;
}

std::string numbered(std::string_view noun, std::size_t index) {
  return std::string(noun) + ' ' + std::to_string(index + 1);
}

std::string_view kind_words(HeaderCommandKind kind) {
  switch (kind) {
    case HeaderCommandKind::Flag:
      return "a flag";
    case HeaderCommandKind::Assignment:
      return "an assignment";
    case HeaderCommandKind::ParameterList:
      return "a parameter list";
  }
  return unknown_kind;
}

std::string_view kind_words(GeometryKind kind) {
  switch (kind) {
    case GeometryKind::None:
      return absent;
    case GeometryKind::Atoms:
      return "a list of atoms";
    case GeometryKind::XyzFile:
      return "a list of XYZ references";
    case GeometryKind::XyzTrajectory:
      return "a trajectory reference";
  }
  return unknown_kind;
}

/// What a line would be read as, with an article.
std::string name_of(const Part& part, const QuillInput& input) {
  switch (part.role) {
    case LineRole::Command:
      return "a header command";
    case LineRole::ChargeAndMultiplicity:
      return "charge and multiplicity";
    case LineRole::Atom:
      return "an atom of element " + input.geometry.atoms.at(part.index.value()).symbol;
    case LineRole::XyzReference:
      return part.index ? "an XYZ reference" : "an XYZ reference without a path";
    case LineRole::Trajectory:
      return part.index ? "a trajectory reference" : "a trajectory reference without a path";
    case LineRole::PostCommand:
      return with_article(input.post_commands.at(part.index.value()).kind);
    case LineRole::Blank:
    case LineRole::Dropped:
      break;
  }
  return "nothing";
}

/// The part that a member belongs to, as the end of a phrase: "atom 2", "parameter 1 of command 2".
std::string owner_of(const Difference& difference) {
  const std::size_t index = difference.part.index.value_or(0);
  switch (difference.part.role) {
    case LineRole::Command:
      return (difference.parameter ? numbered("parameter", *difference.parameter) + " of "
                                   : std::string()) +
             numbered("command", index);
    case LineRole::Atom:
      return numbered("atom", index);
    case LineRole::XyzReference:
      return numbered("XYZ reference", index);
    case LineRole::Trajectory:
      return numbered("trajectory reference", index);
    case LineRole::PostCommand:
      return numbered("post-processing line", index);
    default:
      return {};
  }
}

/// What comes before the owner of a member; the members of the document as a whole have none.
std::string_view member_words(Member member) {
  switch (member) {
    case Member::CommandCount:
      return "the number of header commands";
    case Member::CommandName:
    case Member::ParameterName:
      return "the name of ";
    case Member::CommandKind:
    case Member::PostLineKind:
      return "";
    case Member::CommandValue:
    case Member::ParameterValue:
      return "the value of ";
    case Member::ParameterCount:
      return "the number of parameters of ";
    case Member::ChargeLine:
      return "the charge and multiplicity line";
    case Member::Charge:
      return "the charge";
    case Member::Multiplicity:
      return "the multiplicity";
    case Member::GeometryKind:
      return "the coordinate section";
    case Member::AtomCount:
      return "the number of atoms";
    case Member::Symbol:
      return "the symbol of ";
    case Member::X:
      return "x of ";
    case Member::Y:
      return "y of ";
    case Member::Z:
      return "z of ";
    case Member::PathCount:
      return "the number of paths";
    case Member::Path:
    case Member::PostFile:
      return "the path of ";
    case Member::PostLineCount:
      return "the number of post-processing lines";
    case Member::AtomNumbers:
      return "the list of atom numbers of ";
    case Member::ScanValue:
      return "the scan value of ";
    case Member::ScanSteps:
      return "the number of steps of ";
    case Member::RawText:
      return "the text of ";
  }
  return {};
}

std::string value_words(const std::optional<std::string>& text) {
  return text ? in_apostrophes(*text) : std::string(absent);
}

std::string command_words(const Difference& difference, const HeaderCommand& command) {
  switch (difference.member) {
    case Member::CommandName:
      return in_apostrophes(command.name);
    case Member::CommandKind:
      return std::string(kind_words(command.kind));
    case Member::CommandValue:
      return value_words(command.value);
    case Member::ParameterName:
      return in_apostrophes(command.parameters.at(difference.parameter.value()).name);
    case Member::ParameterValue:
      return value_words(command.parameters.at(difference.parameter.value()).value);
    default:
      return std::to_string(command.parameters.size());
  }
}

std::string atom_words(Member member, const AtomRecord& atom) {
  switch (member) {
    case Member::X:
      return shortest_text(atom.x);
    case Member::Y:
      return shortest_text(atom.y);
    case Member::Z:
      return shortest_text(atom.z);
    default:
      return in_apostrophes(atom.symbol);
  }
}

std::string post_line_words(Member member, const PostCommand& command) {
  switch (member) {
    case Member::PostLineKind:
      return with_article(command.kind);
    case Member::AtomNumbers:
      return command.atom_indices.empty() ? std::string(absent) : joined(command.atom_indices);
    case Member::ScanValue:
      return command.scan_value ? shortest_text(*command.scan_value) : std::string(absent);
    case Member::ScanSteps:
      return command.scan_steps ? std::to_string(*command.scan_steps) : std::string(absent);
    case Member::PostFile:
      return in_apostrophes(command.post_file);
    default:
      return in_apostrophes(command.raw_text);
  }
}

std::string document_words(Member member, const QuillInput& input) {
  const GeometryBlock& geometry = input.geometry;
  switch (member) {
    case Member::CommandCount:
      return std::to_string(input.commands.size());
    case Member::ChargeLine:
      return geometry.has_charge_and_multiplicity ? "present" : std::string(absent);
    case Member::Charge:
      return std::to_string(geometry.charge);
    case Member::Multiplicity:
      return std::to_string(geometry.multiplicity);
    case Member::GeometryKind:
      return std::string(kind_words(geometry.kind));
    case Member::AtomCount:
      return std::to_string(geometry.atoms.size());
    case Member::PathCount:
      return std::to_string(geometry.xyz_files.size());
    default:
      return std::to_string(input.post_commands.size());
  }
}

/// What a document has in the place that a difference names.
std::string found_words(const Difference& difference, const QuillInput& input) {
  const std::size_t index = difference.part.index.value_or(0);
  switch (difference.part.role) {
    case LineRole::Command:
      return command_words(difference, input.commands.at(index));
    case LineRole::Atom:
      return atom_words(difference.member, input.geometry.atoms.at(index));
    case LineRole::XyzReference:
    case LineRole::Trajectory:
      return in_apostrophes(input.geometry.xyz_files.at(index));
    case LineRole::PostCommand:
      return post_line_words(difference.member, input.post_commands.at(index));
    default:
      return document_words(difference.member, input);
  }
}

std::string misread_words(const Explanation& explanation, const QuillInput& wanted,
                          const QuillInput& found) {
  const bool is_dropped = explanation.found.role == LineRole::Dropped;
  std::string text = is_dropped ? "would be dropped with a warning"
                                : "would be read as " + name_of(explanation.found, found);
  if (!explanation.wanted) return text + ", which is not in the document you asked for";
  text += is_dropped ? ", not read as " : ", not as ";
  text += name_of(*explanation.wanted, wanted);
  if (explanation.is_avoidable) text += "; another post-processing line before it avoids that";
  return text;
}

std::string subject_of(const QuotingProblem& problem) {
  switch (problem.piece) {
    case QuotingProblem::Piece::Command:
      return "the command " + in_apostrophes(problem.name);
    case QuotingProblem::Piece::CommandName:
      return "the command name " + in_apostrophes(problem.name);
    case QuotingProblem::Piece::CommandValue:
      return "the value " + in_apostrophes(problem.value);
    case QuotingProblem::Piece::ParameterName:
      return "the parameter name " + in_apostrophes(problem.name);
    case QuotingProblem::Piece::ParameterValue:
      break;
  }
  return "the value " + in_apostrophes(problem.value) + " of parameter " +
         in_apostrophes(problem.name);
}

std::string predicate_of(const QuotingProblem& problem) {
  switch (problem.reason) {
    case QuotingProblem::Reason::LineBreak:
      return " holds a line break, and a header command is one line";
    case QuotingProblem::Reason::ReadDifferently:
      return " would not read back as it is";
    case QuotingProblem::Reason::NoQuotesHelp:
      return " cannot be written: as it is, in double quotes and in single quotes it would be read "
             "differently";
    case QuotingProblem::Reason::NoValue:
      return " is an assignment without a value and would read back with an empty one";
    case QuotingProblem::Reason::UnknownKind:
      return " is of unknown kind";
    case QuotingProblem::Reason::UnusedMembers:
      break;
  }
  return " is " + std::string(kind_words(problem.kind)) +
         " and holds a value or parameters that are not written with it";
}

}  // namespace

std::string describe(const Part& part, const QuillInput& input) {
  switch (part.role) {
    case LineRole::Blank:
      return "blank";
    case LineRole::Command:
      return numbered("command", part.index.value());
    case LineRole::ChargeAndMultiplicity:
      return "charge and multiplicity";
    case LineRole::Atom:
      return numbered("atom", part.index.value());
    case LineRole::XyzReference:
      return part.index ? numbered("XYZ reference", *part.index) : "XYZ reference without a path";
    case LineRole::Trajectory:
      return part.index ? "trajectory reference" : "trajectory reference without a path";
    case LineRole::PostCommand:
      return std::string(noun_of(input.post_commands.at(part.index.value()).kind));
    case LineRole::Dropped:
      return "dropped";
  }
  return {};
}

std::string_view noun_of(PostCommandKind kind) {
  const PostLineShape* shape = find_words(kind);
  return shape == nullptr ? "post-processing line of unknown kind" : shape->noun;
}

std::string words(const Difference& difference, const QuillInput& wanted, const QuillInput& found) {
  return std::string(member_words(difference.member)) + owner_of(difference) + " is " +
         found_words(difference, found) + " instead of " + found_words(difference, wanted);
}

std::string words(const Proof& proof, const QuillInput& wanted) {
  if (!proof.explanation) return {};
  const Explanation& explanation = *proof.explanation;
  const QuillInput& found = proof.found.input;
  const std::string line =
      explanation.line ? "line " + std::to_string(*explanation.line) + ' ' : "";
  switch (explanation.kind) {
    case Explanation::Kind::OtherPart:
      return line + misread_words(explanation, wanted, found);
    case Explanation::Kind::OtherContent:
      return line + "would be read differently: " +
             words(proof.comparison.differences.at(explanation.difference.value()), wanted, found);
    case Explanation::Kind::MissingLine:
      return "no line would be read as " + name_of(explanation.wanted.value(), wanted) + " (" +
             in_apostrophes(expected_line(*explanation.wanted, wanted)) + ')';
    case Explanation::Kind::Difference:
      break;
  }
  return words(proof.comparison.differences.at(explanation.difference.value()), wanted, found);
}

std::string words(const QuotingProblem& problem) {
  return subject_of(problem) + predicate_of(problem) +
         (problem.is_due_to_next_parameter ? " with another parameter after it" : "");
}

std::string in_apostrophes(std::string_view text) {
  std::string out = "'";
  out += text;
  out += '\'';
  return out;
}

std::string shortest_text(double number) {
  char text[longest_number];
  return {text, std::to_chars(text, text + sizeof text, number).ptr};
}

std::string rounded_text(double number) {
  char text[longest_number];
  const auto format = std::chars_format::general;
  return {text, std::to_chars(text, text + sizeof text, number, format, 2).ptr};
}

std::string joined(const std::vector<std::int32_t>& numbers) {
  std::string text;
  for (const std::int32_t number : numbers)
    text += (text.empty() ? "" : " ") + std::to_string(number);
  return text;
}

}  // namespace kelp::input::quill::lossless_edit
