#include "edit_support/value_spelling.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

#include "kelp/input/quill/reader.hpp"
#include "kelp/input/quill/writer.hpp"
#include "support/comparison.hpp"
#include "support/printing.hpp"

namespace kelp::input::quill::edit_support {

namespace {

struct ValueRow {
  std::string_view name;
  std::string value;
  std::string spelling;
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
    {"BlankBehind", "a\t", "\"a\t\""},
    {"OnlyABlank", " ", "\" \""},
    {"CarriageReturnBehind", "a\r", "\"a\r\""},
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

class AssignedValue : public testing::TestWithParam<ValueRow> {};

TEST_P(AssignedValue, IsSpelled) {
  const Spelling spelling = spell_assignment_value(GetParam().value);
  EXPECT_EQ(spelling.text, GetParam().spelling);
  EXPECT_EQ(spelling.reason, "");
}

TEST_P(AssignedValue, ReadsBack) {
  const HeaderCommand meant("model", HeaderCommandKind::Assignment, GetParam().value);
  const SpelledCommand spelled = spell(meant);
  EXPECT_EQ(to_string(spelled.command), "#model = " + GetParam().spelling);
  EXPECT_TRUE(spelled.reasons.empty());
  EXPECT_EQ(parse_string(to_string(spelled.command)).input, QuillInput({meant}));
}

INSTANTIATE_TEST_SUITE_P(Table, AssignedValue, testing::ValuesIn(assigned_values),
                         [](const auto& row) { return std::string(row.param.name); });

class ParameterValue : public testing::TestWithParam<ValueRow> {};

TEST_P(ParameterValue, IsSpelledAlikeInEveryPlace) {
  const CommandParameter parameter("p", GetParam().value);
  EXPECT_EQ(spell_parameter_value(parameter, ParameterPlace::FollowedByOthers).text,
            GetParam().spelling);
  EXPECT_EQ(spell_parameter_value(parameter, ParameterPlace::Last).text, GetParam().spelling);
}

TEST_P(ParameterValue, ReadsBackAmongOthers) {
  const CommandParameter parameter("p", GetParam().value);
  const HeaderCommand meant("opt", HeaderCommandKind::ParameterList, std::nullopt,
                            {parameter, {"tight"}, parameter});
  const SpelledCommand spelled = spell(meant);
  EXPECT_TRUE(spelled.reasons.empty());
  EXPECT_EQ(parse_string(to_string(spelled.command)).input, QuillInput({meant}));
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
     {"the value 'a\nb' holds a line break, and a header command is one line"}},
    {"ALineBreakInAParameterValue",
     list("opt", {{"p", "a\r\n"}}),
     {"the value 'a\r\n' of parameter 'p' holds a line break, and a header command is one line"}},
    {"ALineBreakInAParameterName",
     list("opt", {{"p\nq", "1"}}),
     {"the parameter name 'p\nq' holds a line break, and a header command is one line"}},
    {"ALineBreakInACommandName",
     HeaderCommand("opt\nfreq"),
     {"the command name 'opt\nfreq' holds a line break, and a header command is one line"}},
    {"BothKindsOfOpenQuotesBeforeAnotherParameter",
     list("opt", {{"p", "'\""}, {"q"}}),
     {"the value ''\"' of parameter 'p' cannot be spelled: it would read back otherwise as it "
      "stands, in double quotes and in single quotes with another parameter after it"}},
    {"AValueThatNoQuotesKeepAnywhere",
     list("opt", {{"p", ",\"',',"}}),
     {"the value ',\"',',' of parameter 'p' cannot be spelled: it would read back otherwise as "
      "it stands, in double quotes and in single quotes"}},
    {"TheSameBeforeAnotherParameter",
     list("opt", {{"p", ",\"',',"}, {"q"}}),
     {"the value ',\"',',' of parameter 'p' cannot be spelled: it would read back otherwise as "
      "it stands, in double quotes and in single quotes"}},
    {"AnEmptyParameterName",
     list("opt", {{""}, {"", "1"}}),
     {"the parameter name '' would not read back as it is",
      "the parameter name '' would not read back as it is"}},
    {"AnEqualsSignInAParameterName",
     list("opt", {{"a=b"}}),
     {"the parameter name 'a=b' would not read back as it is"}},
    {"ACommaInAParameterName",
     list("opt", {{"a,b"}, {"c"}}),
     {"the parameter name 'a,b' would not read back as it is"}},
    {"OuterBlanksInAParameterName",
     list("opt", {{" a", "1"}}),
     {"the parameter name ' a' would not read back as it is"}},
    {"AnApostropheInANameBeforeAnotherParameter",
     list("opt", {{"it's"}, {"it's"}}),
     {"the parameter name 'it's' would not read back as it is with another parameter after it"}},
    {"AnApostropheInANameWithAValueBeforeAnotherParameter",
     list("opt", {{"it's", "5"}, {"b"}}),
     {"the parameter name 'it's' would not read back as it is with another parameter after it"}},
    {"OuterBlanksInACommandName",
     HeaderCommand(" opt"),
     {"the command name ' opt' would not read back as it is"}},
    {"AParenthesisInAFlag",
     HeaderCommand("f(x)"),
     {"the command name 'f(x)' would not read back as it is"}},
    {"AnEqualsSignInAnAssignment",
     assignment("a=b", "c"),
     {"the command name 'a=b' would not read back as it is"}},
    {"AnEqualsSignInAList",
     list("a=b", {{"c"}}),
     {"the command name 'a=b' would not read back as it is"}},
    {"NoValue",
     assignment("model", std::nullopt),
     {"the assignment 'model' has no value and would read back with an empty one"}},
    {"AFlagWithAValue",
     HeaderCommand("opt", HeaderCommandKind::Flag, "1"),
     {"the command 'opt' is a flag and holds a value or parameters that are not written with it"}},
    {"AFlagWithParameters",
     HeaderCommand("opt", HeaderCommandKind::Flag, std::nullopt, {{"a"}}),
     {"the command 'opt' is a flag and holds a value or parameters that are not written with it"}},
    {"AnAssignmentWithParameters",
     HeaderCommand("opt", HeaderCommandKind::Assignment, "1", {{"a"}}),
     {"the command 'opt' is an assignment and holds a value or parameters that are not written "
      "with it"}},
    {"AListWithAValue",
     HeaderCommand("opt", HeaderCommandKind::ParameterList, "1", {{"a"}}),
     {"the command 'opt' is a parameter list and holds a value or parameters that are not written "
      "with it"}},
    {"AnUnknownKind",
     HeaderCommand("opt", HeaderCommandKind{3}),
     {"the command 'opt' is of unknown kind"}},
    {"EveryReasonInAList",
     list("opt", {{"a=", "1"}, {"b", "2"}, {"c", "\n"}}),
     {"the parameter name 'a=' would not read back as it is",
      "the value '\n' of parameter 'c' holds a line break, and a header command is one line"}},
};

class UnspellableCommand : public testing::TestWithParam<RefusalRow> {};

TEST_P(UnspellableCommand, GivesTheReasonsAndKeepsThePiecesAsTheyAre) {
  const SpelledCommand spelled = spell(GetParam().command);
  EXPECT_EQ(spelled.reasons, GetParam().reasons);
  EXPECT_EQ(spelled.command, GetParam().command);
}

INSTANTIATE_TEST_SUITE_P(Table, UnspellableCommand, testing::ValuesIn(refusals),
                         [](const auto& row) { return std::string(row.param.name); });

const HeaderCommand spellable[] = {
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

class SpellableCommand : public testing::TestWithParam<HeaderCommand> {};

TEST_P(SpellableCommand, ReadsBack) {
  const SpelledCommand spelled = spell(GetParam());
  EXPECT_TRUE(spelled.reasons.empty());
  EXPECT_EQ(parse_string(to_string(spelled.command)).input, QuillInput({GetParam()}));
}

INSTANTIATE_TEST_SUITE_P(Table, SpellableCommand, testing::ValuesIn(spellable));

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

std::optional<std::string> value_read_from(const std::string& spelling, bool is_followed) {
  const std::string line = "#opt(p=" + spelling + (is_followed ? ", q)" : ")");
  const std::vector<HeaderCommand> commands = parse_string(line).input.commands;
  const std::vector<CommandParameter>& parameters = commands.at(0).parameters;
  if (parameters.size() != (is_followed ? 2U : 1U) || parameters[0].name != "p")
    return std::nullopt;
  if (is_followed && parameters[1] != CommandParameter("q")) return std::nullopt;
  return parameters[0].value;
}

}  // namespace

TEST(ParameterValueSpelling, FallsBackOnAnOpenQuoteForTheLastParameterOnly) {
  const CommandParameter parameter("p", "'\"");
  EXPECT_EQ(spell_parameter_value(parameter, ParameterPlace::Last).text, "'\"");
  EXPECT_EQ(spell_parameter_value(parameter).text, std::nullopt);
}

TEST(ParameterValueSpelling, GivesTheEmptyTextForABareName) {
  EXPECT_EQ(spell_parameter_value(CommandParameter("tight")).text, "");
  EXPECT_EQ(spell_parameter_value(CommandParameter("it's"), ParameterPlace::Last).text, "");
  EXPECT_EQ(spell_parameter_value(CommandParameter("it's")).text, std::nullopt);
}

TEST(ParameterValueSpelling, FindsASpellingForEveryValueThatHasOne) {
  // Whatever can be read from any spelling of up to six characters is spelled, and what is spelled
  // reads back.
  constexpr std::string_view characters = "a'\", ";
  for (const bool is_followed : {false, true}) {
    std::set<std::string> readable;
    for_each_text(characters, 6, [&](const std::string& spelling) {
      if (const auto value = value_read_from(spelling, is_followed)) readable.insert(*value);
    });
    int spelled = 0;
    int refused = 0;
    for_each_text(characters, 4, [&](const std::string& value) {
      const Spelling spelling = spell_parameter_value(
          CommandParameter("p", value),
          is_followed ? ParameterPlace::FollowedByOthers : ParameterPlace::Last);
      EXPECT_EQ(spelling.text.has_value(), readable.count(value) == 1) << value;
      EXPECT_EQ(spelling.reason.empty(), spelling.text.has_value());
      ++(spelling.text ? spelled : refused);
      if (spelling.text) {
        EXPECT_EQ(value_read_from(*spelling.text, is_followed), value);
      }
    });
    EXPECT_GT(spelled, 600);
    EXPECT_EQ(refused > 10, is_followed);
  }
}

TEST(SpelledDocument, SpellsEveryCommandAndLeavesTheRestAlone) {
  QuillInput input({assignment("model", " m1 "), list("opt", {{"x", "1,2"}, {"y", "\n"}}),
                    assignment("device", std::nullopt)});
  input.geometry.kind = GeometryKind::XyzFile;
  input.geometry.xyz_files = {" a"};
  input.post_commands.emplace_back(PostCommandKind::BondConstraint,
                                   std::vector<std::int32_t>{1, 2});
  const SpelledDocument spelled = spell(input);
  EXPECT_EQ(spelled.document.to_string(),
            "#model = \" m1 \"\n#opt(x=\"1,2\", y=\n)\n#device = \n\nXYZ  a\n\nB 1 2\n");
  EXPECT_THAT(
      spelled.reasons,
      testing::ElementsAre(
          "the value '\n' of parameter 'y' holds a line break, and a header command is one line",
          "the assignment 'device' has no value and would read back with an empty one"));
}

}  // namespace kelp::input::quill::edit_support
