#include "kelp/input/quill/lossless/quoting.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

#include "kelp/input/quill/lossless/wording.hpp"
#include "kelp/input/quill/reader.hpp"
#include "kelp/input/quill/writer.hpp"
#include "support/comparison.hpp"
#include "support/printing.hpp"

namespace kelp::input::quill::lossless {

namespace {

struct ValueRow {
  std::string_view name;
  std::string value;
  std::string quoted;
};

void PrintTo(const ValueRow& row, std::ostream* out) { *out << testing::PrintToString(row.value); }

const ValueRow assigned_values[] = {
    {"Plain", "b3lyp", "b3lyp"},
    {"Empty", "", ""},
    {"InnerBlank", "b3 lyp", "b3 lyp"},
    {"Comma", "a,b", "a,b"},
    {"Parenthesis", "f(1)", "f(1)"},
    {"EqualsSign", "a=b", "a=b"},
    {"HashSign", "#", "#"},
    {"BlankInFront", " a", "\" a\""},
    {"BlankAfter", "a\t", "\"a\t\""},
    {"OnlyABlank", " ", "\" \""},
    {"CarriageReturnAfter", "a\r", "\"a\r\""},
    {"CarriageReturnInside", "a\rb", "a\rb"},
    {"InDoubleQuotes", "\"a\"", "'\"a\"'"},
    {"InSingleQuotes", "'a'", "\"'a'\""},
    {"InQuotesWithTheOtherKindInside", "'a\"'", "\"'a\"'\""},
    {"ALoneQuote", "\"", "\""},
    {"TwoQuotes", "''", "\"''\""},
    {"OneQuoteOfEachKind", "\"'", "\"'"},
    {"AnOpenQuote", "it's", "it's"},
    {"NotAscii", "\xC3\xA9\xFF", "\xC3\xA9\xFF"},
    {"Nul", std::string(1, '\0'), std::string(1, '\0')},
};

const ValueRow followed_values[] = {
    {"Plain", "50", "50"},
    {"Empty", "", ""},
    {"InnerBlank", "a b", "a b"},
    {"Comma", "1,2", "\"1,2\""},
    {"CommaAndDoubleQuotes", "\"1\",2", "'\"1\",2'"},
    {"CommaAndSingleQuotes", "'1',2", "\"'1',2\""},
    {"CommaInQuotesOfItsOwn", "f('1,2')", "f('1,2')"},
    {"Parentheses", "(1)", "(1)"},
    {"ClosingParenthesis", ")", ")"},
    {"EqualsSign", "a=b", "a=b"},
    {"OuterBlanks", " a ", "\" a \""},
    {"InSingleQuotes", "'a'", "\"'a'\""},
    {"AnApostrophe", "it's", "\"it's\""},
    {"AnInch", "5\"", "'5\"'"},
    {"BothKindsClosed", "'a' \"b\"", "'a' \"b\""},
};

enum class Place { BeforeOthers, Last };

/// The value of a parameter as it is written, the empty text for a bare one, or nothing when it
/// cannot be written.
std::optional<std::string> quoted_parameter(const CommandParameter& parameter, Place place) {
  HeaderCommand command("opt", HeaderCommandKind::ParameterList, std::nullopt, {parameter});
  if (place == Place::BeforeOthers) command.parameters.emplace_back("b");
  const QuotedCommand quoted = quote(command);
  if (!quoted.problems.empty()) return std::nullopt;
  return quoted.command.parameters.front().value.value_or("");
}

std::vector<std::string> words_of(const std::vector<QuotingProblem>& problems) {
  std::vector<std::string> all;
  for (const QuotingProblem& problem : problems) all.push_back(words(problem));
  return all;
}

class AssignedValue : public testing::TestWithParam<ValueRow> {};

TEST_P(AssignedValue, ReadsBack) {
  const HeaderCommand wanted("model", HeaderCommandKind::Assignment, GetParam().value);
  const QuotedCommand quoted = quote(wanted);
  EXPECT_EQ(to_string(quoted.command), "#model = " + GetParam().quoted);
  EXPECT_TRUE(quoted.problems.empty());
  EXPECT_EQ(parse_string(to_string(quoted.command)).input, QuillInput({wanted}));
}

INSTANTIATE_TEST_SUITE_P(Table, AssignedValue, testing::ValuesIn(assigned_values),
                         [](const auto& row) { return std::string(row.param.name); });

class ParameterValue : public testing::TestWithParam<ValueRow> {};

TEST_P(ParameterValue, IsQuotedAlikeInEveryPlace) {
  EXPECT_EQ(quoted_parameter({"p", GetParam().value}, Place::BeforeOthers), GetParam().quoted);
  EXPECT_EQ(quoted_parameter({"p", GetParam().value}, Place::Last), GetParam().quoted);
}

TEST_P(ParameterValue, ReadsBackAmongOthers) {
  const CommandParameter parameter("p", GetParam().value);
  const HeaderCommand wanted("opt", HeaderCommandKind::ParameterList, std::nullopt,
                             {parameter, {"tight"}, parameter});
  const QuotedCommand quoted = quote(wanted);
  EXPECT_TRUE(quoted.problems.empty());
  EXPECT_EQ(parse_string(to_string(quoted.command)).input, QuillInput({wanted}));
}

INSTANTIATE_TEST_SUITE_P(Table, ParameterValue, testing::ValuesIn(followed_values),
                         [](const auto& row) { return std::string(row.param.name); });

struct RefusalRow {
  std::string_view name;
  HeaderCommand command;
  std::vector<std::string> reasons;
};

void PrintTo(const RefusalRow& row, std::ostream* out) { PrintTo(row.command, out); }

HeaderCommand assignment(std::string name, std::optional<std::string> value) {
  return HeaderCommand(std::move(name), HeaderCommandKind::Assignment, std::move(value));
}

HeaderCommand list(std::string name, std::vector<CommandParameter> parameters) {
  return HeaderCommand(std::move(name), HeaderCommandKind::ParameterList, std::nullopt,
                       std::move(parameters));
}

const RefusalRow refusals[] = {
    {"ALineBreakInAnAssignedValue",
     assignment("model", "a\nb"),
     {"the value 'a\nb' contains a line break, but a header command is one line"}},
    {"ALineBreakInAParameterValue",
     list("opt", {{"p", "a\r\n"}}),
     {"the value 'a\r\n' of parameter 'p' contains a line break, but a header command is one "
      "line"}},
    {"ALineBreakInAParameterName",
     list("opt", {{"p\nq", "1"}}),
     {"the parameter name 'p\nq' contains a line break, but a header command is one line"}},
    {"ALineBreakInACommandName",
     HeaderCommand("opt\nfreq"),
     {"the command name 'opt\nfreq' contains a line break, but a header command is one line"}},
    {"BothKindsOfOpenQuotesBeforeAnotherParameter",
     list("opt", {{"p", "'\""}, {"q"}}),
     {"the value ''\"' of parameter 'p' cannot be written: without quotes, in double quotes and in "
      "single quotes it would be read differently with another parameter after it"}},
    {"AValueThatNoQuotesKeepAnywhere",
     list("opt", {{"p", ",\"',',"}}),
     {"the value ',\"',',' of parameter 'p' cannot be written: without quotes, in double quotes "
      "and in "
      "single quotes it would be read differently"}},
    {"TheSameBeforeAnotherParameter",
     list("opt", {{"p", ",\"',',"}, {"q"}}),
     {"the value ',\"',',' of parameter 'p' cannot be written: without quotes, in double quotes "
      "and in "
      "single quotes it would be read differently"}},
    {"AnEmptyParameterName",
     list("opt", {{""}, {"", "1"}}),
     {"the parameter name '' would be read differently",
      "the parameter name '' would be read differently"}},
    {"AnEqualsSignInAParameterName",
     list("opt", {{"a=b"}}),
     {"the parameter name 'a=b' would be read differently"}},
    {"ACommaInAParameterName",
     list("opt", {{"a,b"}, {"c"}}),
     {"the parameter name 'a,b' would be read differently"}},
    {"OuterBlanksInAParameterName",
     list("opt", {{" a", "1"}}),
     {"the parameter name ' a' would be read differently"}},
    {"AnApostropheInANameBeforeAnotherParameter",
     list("opt", {{"it's"}, {"it's"}}),
     {"the parameter name 'it's' would be read differently with another parameter after it"}},
    {"AnApostropheInANameWithAValueBeforeAnotherParameter",
     list("opt", {{"it's", "5"}, {"b"}}),
     {"the parameter name 'it's' would be read differently with another parameter after it"}},
    {"OuterBlanksInACommandName",
     HeaderCommand(" opt"),
     {"the command name ' opt' would be read differently"}},
    {"AParenthesisInAFlag",
     HeaderCommand("f(x)"),
     {"the command name 'f(x)' would be read differently"}},
    {"AnEqualsSignInAnAssignment",
     assignment("a=b", "c"),
     {"the command name 'a=b' would be read differently"}},
    {"AnEqualsSignInAList",
     list("a=b", {{"c"}}),
     {"the command name 'a=b' would be read differently"}},
    {"NoValue",
     assignment("model", std::nullopt),
     {"the command 'model' is an assignment without a value and would read back with an empty "
      "one"}},
    {"AFlagWithAValue",
     HeaderCommand("opt", HeaderCommandKind::Flag, "1"),
     {"the command 'opt' is a flag and has a value or parameters that would not be written"}},
    {"AFlagWithParameters",
     HeaderCommand("opt", HeaderCommandKind::Flag, std::nullopt, {{"a"}}),
     {"the command 'opt' is a flag and has a value or parameters that would not be written"}},
    {"AnAssignmentWithParameters",
     HeaderCommand("opt", HeaderCommandKind::Assignment, "1", {{"a"}}),
     {"the command 'opt' is an assignment and has a value or parameters that would not be "
      "written"}},
    {"AListWithAValue",
     HeaderCommand("opt", HeaderCommandKind::ParameterList, "1", {{"a"}}),
     {"the command 'opt' is a parameter list and has a value or parameters that would not be "
      "written"}},
    {"AnUnknownKind",
     HeaderCommand("opt", HeaderCommandKind{3}),
     {"the command 'opt' is of unknown kind"}},
    {"EveryReasonInAList",
     list("opt", {{"a=", "1"}, {"b", "2"}, {"c", "\n"}}),
     {"the parameter name 'a=' would be read differently",
      "the value '\n' of parameter 'c' contains a line break, but a header command is one line"}},
};

class CommandThatCannotBeWritten : public testing::TestWithParam<RefusalRow> {};

TEST_P(CommandThatCannotBeWritten, GivesTheReasonsAndKeepsThePiecesAsTheyAre) {
  const QuotedCommand quoted = quote(GetParam().command);
  EXPECT_EQ(words_of(quoted.problems), GetParam().reasons);
  EXPECT_EQ(quoted.command, GetParam().command);
}

INSTANTIATE_TEST_SUITE_P(Table, CommandThatCannotBeWritten, testing::ValuesIn(refusals),
                         [](const auto& row) { return std::string(row.param.name); });

const HeaderCommand writable[] = {
    HeaderCommand(),
    HeaderCommand("freq opt"),
    HeaderCommand("#freq"),
    HeaderCommand("a)b"),
    assignment("", "5"),
    assignment("f)", ""),
    list("", {{"a"}}),
    list("opt", {}),
    list("a)b", {{"c)"}}),
    list("opt", {{"'a,b'"}, {"'q r'", "1"}}),
    list("opt", {{"it's"}}),
    list("opt", {{"a"}, {"p", "'\""}}),
    list("opt", {{"it's", "x's"}, {"b"}}),
    list("opt", {{"p", "'a' , \"b"}, {"q", "1,2"}}),
};

class CommandThatCanBeWritten : public testing::TestWithParam<HeaderCommand> {};

TEST_P(CommandThatCanBeWritten, ReadsBack) {
  const QuotedCommand quoted = quote(GetParam());
  EXPECT_TRUE(quoted.problems.empty());
  EXPECT_EQ(parse_string(to_string(quoted.command)).input, QuillInput({GetParam()}));
}

INSTANTIATE_TEST_SUITE_P(Table, CommandThatCanBeWritten, testing::ValuesIn(writable));

/// Calls back with every text of up to `length` of these characters.
template <typename Callback>
void for_each_text(std::string_view characters, std::size_t length, const Callback& callback) {
  std::vector<std::string> texts = {""};
  for (std::size_t begin = 0; begin != texts.size(); ++begin) {
    const std::string text = texts[begin];
    callback(text);
    if (text.size() == length) continue;
    for (const char c : characters) texts.push_back(text + c);
  }
}

std::optional<std::string> value_read_from(const std::string& text, bool is_followed) {
  const std::string line = "#opt(p=" + text + (is_followed ? ", q)" : ")");
  const std::vector<HeaderCommand> commands = parse_string(line).input.commands;
  const std::vector<CommandParameter>& parameters = commands.at(0).parameters;
  if (parameters.size() != (is_followed ? 2U : 1U) || parameters[0].name != "p")
    return std::nullopt;
  if (is_followed && parameters[1] != CommandParameter("q")) return std::nullopt;
  return parameters[0].value;
}

}  // namespace

TEST(ParameterQuoting, FallsBackOnAnOpenQuoteForTheLastParameterOnly) {
  EXPECT_EQ(quoted_parameter({"p", "'\""}, Place::Last), "'\"");
  EXPECT_EQ(quoted_parameter({"p", "'\""}, Place::BeforeOthers), std::nullopt);
}

TEST(ParameterQuoting, LeavesABareNameAlone) {
  EXPECT_EQ(quoted_parameter({"tight"}, Place::BeforeOthers), "");
  EXPECT_EQ(quoted_parameter({"it's"}, Place::Last), "");
  EXPECT_EQ(quoted_parameter({"it's"}, Place::BeforeOthers), std::nullopt);
}

TEST(ParameterQuoting, DoesNotDependOnTheOtherParameters) {
  std::vector<std::string> values;
  for_each_text("a'\", ", 2, [&](const std::string& text) { values.push_back(text); });
  for (const std::string& first : values) {
    for (const std::string& last : values) {
      const std::optional<std::string> text = quoted_parameter({"p", first}, Place::BeforeOthers);
      const std::optional<std::string> last_text = quoted_parameter({"q", last}, Place::Last);
      if (!text || !last_text) continue;
      const HeaderCommand wanted("opt", HeaderCommandKind::ParameterList, std::nullopt,
                                 {{"p", *text}, {"q", *last_text}});
      EXPECT_EQ(quote(list("opt", {{"p", first}, {"q", last}})).command, wanted);
    }
  }
}

TEST(ParameterQuoting, FindsAWayForEveryValueThatHasOne) {
  // Whatever can be read from any text of up to six characters can be written, and what is written
  // reads back.
  constexpr std::string_view characters = "a'\", ";
  for (const bool is_followed : {false, true}) {
    std::set<std::string> readable;
    for_each_text(characters, 6, [&](const std::string& text) {
      if (const auto value = value_read_from(text, is_followed)) readable.insert(*value);
    });
    int written = 0;
    int refused = 0;
    for_each_text(characters, 4, [&](const std::string& value) {
      const std::optional<std::string> text =
          quoted_parameter({"p", value}, is_followed ? Place::BeforeOthers : Place::Last);
      EXPECT_EQ(text.has_value(), readable.count(value) == 1) << value;
      ++(text ? written : refused);
      if (text) {
        EXPECT_EQ(value_read_from(*text, is_followed), value);
      }
    });
    EXPECT_GT(written, 600);
    EXPECT_EQ(refused > 10, is_followed);
  }
}

TEST(QuotedDocument, QuotesEveryCommandAndLeavesTheRestAlone) {
  QuillInput input({assignment("model", " m1 "), list("opt", {{"x", "1,2"}, {"y", "\n"}}),
                    assignment("device", std::nullopt)});
  input.geometry.kind = GeometryKind::XyzFile;
  input.geometry.xyz_files = {" a"};
  input.post_commands.emplace_back(PostCommandKind::BondConstraint,
                                   std::vector<std::int32_t>{1, 2});
  const QuotedDocument quoted = quote(input);
  EXPECT_EQ(quoted.document.to_string(),
            "#model = \" m1 \"\n#opt(x=\"1,2\", y=\n)\n#device = \n\nXYZ  a\n\nB 1 2\n");
  EXPECT_THAT(
      words_of(quoted.problems),
      testing::ElementsAre(
          "the value '\n' of parameter 'y' contains a line break, but a header command is one line",
          "the command 'device' is an assignment without a value and would read back with an empty "
          "one"));
}

}  // namespace kelp::input::quill::lossless
