#include "kelp/input/quill/lossless/wording.hpp"

#include <optional>
#include <variant>

#include "editing/expected_lines.hpp"
#include "editing/phrases.hpp"
#include "model/post_line_shapes.hpp"

namespace kelp::input::quill::lossless {

namespace {

constexpr std::string_view absent = "absent";
constexpr std::string_view unknown_kind = "of unknown kind";

std::string with_article(PostCommandKind kind) {
  const PostLineShape* shape = find_post_line_shape(kind);
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

/// The words before the owner of a member, in the order of the enumeration. The members of the
/// document as a whole have no owner.
constexpr std::string_view member_words[] = {
    "the number of header commands",
    "the name of ",
    "",
    "the value of ",
    "the number of parameters of ",
    "the charge and multiplicity line",
    "the charge",
    "the multiplicity",
    "the coordinate section",
    "the number of atoms",
    "the symbol of ",
    "x of ",
    "y of ",
    "z of ",
    "the number of paths",
    "the path of ",
    "the number of post-processing lines",
    "the list of atom numbers of ",
    "the scan value of ",
    "the number of steps of ",
    "the text of ",
};

/// A value as it comes after "is".
struct ValueWords {
  std::string operator()(std::monostate /*nothing*/) const { return std::string(absent); }
  std::string operator()(bool is_there) const { return is_there ? "present" : std::string(absent); }
  std::string operator()(std::int32_t number) const { return std::to_string(number); }
  std::string operator()(std::size_t number) const { return std::to_string(number); }
  std::string operator()(double number) const { return shortest_text(number); }
  std::string operator()(const std::string& text) const { return in_apostrophes(text); }
  std::string operator()(const std::vector<std::int32_t>& numbers) const {
    return numbers.empty() ? std::string(absent) : joined(numbers);
  }
  std::string operator()(HeaderCommandKind kind) const { return std::string(kind_words(kind)); }
  std::string operator()(GeometryKind kind) const { return std::string(kind_words(kind)); }
  std::string operator()(PostCommandKind kind) const { return with_article(kind); }
};

std::string misread_words(const Explanation& explanation, const QuillInput& wanted,
                          const QuillInput& found) {
  const bool is_dropped = explanation.found.role == LineRole::Dropped;
  std::string text = is_dropped ? "would be dropped with a warning"
                                : "would be read as " + name_of(explanation.found, found);
  if (!explanation.wanted) return text + ", which is not in the document you asked for";
  text += is_dropped ? ", not read as " : ", not as ";
  text += name_of(*explanation.wanted, wanted);
  if (explanation.is_avoidable)
    text += "; put another post-processing line before it to avoid that";
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
      return " contains a line break, but a header command is one line";
    case QuotingProblem::Reason::ReadDifferently:
      return " would be read differently";
    case QuotingProblem::Reason::NoQuotesHelp:
      return " cannot be written: without quotes, in double quotes and in single quotes it would "
             "be read "
             "differently";
    case QuotingProblem::Reason::NoValue:
      return " is an assignment without a value and would read back with an empty one";
    case QuotingProblem::Reason::UnknownKind:
      return " is of unknown kind";
    case QuotingProblem::Reason::UnusedMembers:
      break;
  }
  return " is " + std::string(kind_words(problem.kind)) +
         " and has a value or parameters that would not be written";
}

std::string unlike_words(std::string_view reason) {
  return "does not look like a QUILL input: " + std::string(reason);
}

std::string utf16_words(const std::string& encoding) {
  return "is in UTF-16, which the reader cannot read; 'iconv -f " + encoding +
         " -t UTF-8 FILE' prints it as UTF-8";
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
  const PostLineShape* shape = find_post_line_shape(kind);
  return shape == nullptr ? "post-processing line of unknown kind" : shape->noun;
}

std::string words(const Difference& difference) {
  return std::string(member_words[static_cast<std::size_t>(difference.member)]) +
         owner_of(difference) + " is " + std::visit(ValueWords(), difference.found) +
         " instead of " + std::visit(ValueWords(), difference.wanted);
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
             words(proof.comparison.differences.at(explanation.difference.value()));
    case Explanation::Kind::MissingLine:
      return "no line would be read as " + name_of(explanation.wanted.value(), wanted) + " (" +
             in_apostrophes(expected_line(*explanation.wanted, wanted)) + ')';
    case Explanation::Kind::Difference:
      break;
  }
  return words(proof.comparison.differences.at(explanation.difference.value()));
}

std::string words(const InputDoubt& doubt) {
  switch (doubt.kind) {
    case InputDoubt::Kind::ByteOrderMark:
      return "begins with a byte order mark, which the reader takes for text; 'tail -c +4 FILE' "
             "prints the text without it";
    case InputDoubt::Kind::Utf16:
      return utf16_words("UTF-16");
    case InputDoubt::Kind::Utf16LittleEndian:
      return utf16_words("UTF-16LE");
    case InputDoubt::Kind::Utf16BigEndian:
      return utf16_words("UTF-16BE");
    case InputDoubt::Kind::NulByte:
      return unlike_words("it has a NUL byte");
    case InputDoubt::Kind::Script:
      return unlike_words("its first line is that of a script");
    case InputDoubt::Kind::NoSections:
      break;
  }
  return unlike_words("it has no header line and no coordinates");
}

std::string words(const QuotingProblem& problem) {
  return subject_of(problem) + predicate_of(problem) +
         (problem.is_due_to_next_parameter ? " with another parameter after it" : "");
}

std::string words(const XyzProblem& problem) {
  const bool is_one = problem.found == 1;
  const std::string found = std::to_string(problem.found);
  switch (problem.kind) {
    case XyzProblem::Kind::NoCount:
      break;
    case XyzProblem::Kind::NoNextCount:
      return "the next structure does not begin with the number of its atoms, 1 or more";
    case XyzProblem::Kind::TooFewAtoms:
      return "has " + found + (is_one ? " atom" : " atoms") + " instead of " +
             std::to_string(problem.wanted);
    case XyzProblem::Kind::NoAtom:
      return "expected an atom, a symbol and three coordinates";
    case XyzProblem::Kind::TextAfterEnd:
      return "more text after the last atom";
    case XyzProblem::Kind::NoSuchFrame:
      return "has no structure " + std::to_string(problem.frame) + ": there " +
             (is_one ? "is only 1 structure" : "are only " + found + " structures");
  }
  return "an XYZ file begins with the number of its atoms, 1 or more";
}

}  // namespace kelp::input::quill::lossless
