#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <ostream>
#include <type_traits>
#include <utility>

#include "kelp/input/quill/document.hpp"
#include "support/comparison.hpp"
#include "support/printing.hpp"

namespace kelp::input::quill {

namespace {

using namespace std::string_view_literals;

constexpr std::uint64_t greatest_occurrence = std::numeric_limits<std::uint64_t>::max();
constexpr std::uint64_t two_to_the_32nd = std::uint64_t{1} << 32U;

struct NameRow {
  const char* name;
  std::string_view written;
  std::string_view canonical;
};

void PrintTo(const NameRow& row, std::ostream* out) { *out << row.name; }

const NameRow name_rows[] = {
    {"CanonicalAlready", "opt", "opt"},
    {"UpperCase", "OPT", "opt"},
    {"MixedCase", "fReQ", "freq"},
    {"Hash", "#opt", "opt"},
    {"BlanksAround", " Opt ", "opt"},
    {"BlanksHashAndCase", " #OPT ", "opt"},
    {"SeveralBlanksBeforeTheHash", "  #Freq ", "freq"},
    {"BlankAfterTheHash", "# opt", "opt"},
    {"EveryWhiteSpaceEverywhere", " \t\n\v\f\r# \t\n\v\f\rOpt \t\n\v\f\r", "opt"},
    {"OnlyOneHashIsRemoved", "##opt", "#opt"},
    {"OnlyOneHashIsRemovedOfThree", "###opt", "##opt"},
    {"ASecondHashAfterABlankStays", "# #opt", "#opt"},
    {"AHashInsideStays", "o#pt", "o#pt"},
    {"AHashAtTheEndStays", "opt#", "opt#"},
    {"ABlankInsideStays", "#Two  Words", "two  words"},
    {"AnotherSignStays", "!opt", "!opt"},
    {"HashAlone", "#", ""},
    {"HashAmongBlanks", " \t# \t", ""},
    {"TwoHashes", "##", "#"},
    {"Empty", "", ""},
    {"BlanksOnly", " \t\n\v\f\r ", ""},
    {"NeighboursOfTheAlphabetStay", "@AZ[`az{", "@az[`az{"},
    {"NulIsNotABlank", "\0 OPT \0"sv, "\0 opt \0"sv},
    {"NulBeforeTheHash", "\0#OPT"sv, "\0#opt"sv},
    {"BytesAbove127Stay", "\xC3\x84\xC0OPT\xC3\x96\xDF", "\xC3\x84\xC0opt\xC3\x96\xDF"},
    {"ANoBreakSpaceIsNotABlank", "\xA0opt\xA0", "\xA0opt\xA0"},
};

class CommandName : public testing::TestWithParam<NameRow> {};

TEST_P(CommandName, HasThisCanonicalForm) {
  EXPECT_EQ(normalize_command_name(GetParam().written), GetParam().canonical);
}

INSTANTIATE_TEST_SUITE_P(Table, CommandName, testing::ValuesIn(name_rows),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(CommandName, OfNoDataAtAllIsEmpty) {
  EXPECT_EQ(normalize_command_name(std::string_view()), "");
}

TEST(CommandName, ChangesUpperCaseAsciiLettersInsideAndNoOtherByte) {
  for (int byte = 0; byte < 256; ++byte) {
    const bool is_upper = 'A' <= byte && byte <= 'Z';
    const std::string inside{'x', static_cast<char>(byte), 'x'};
    const std::string canonical{'x', static_cast<char>(is_upper ? byte + 32 : byte), 'x'};
    EXPECT_EQ(normalize_command_name(inside), canonical) << "byte " << byte;
  }
}

TEST(CommandName, LosesBlanksAndHashAtItsStartAndNoOtherByte) {
  for (int byte = 0; byte < 256; ++byte) {
    const auto character = static_cast<char>(byte);
    const bool goes = " \t\n\v\f\r#"sv.find(character) != std::string_view::npos;
    const bool is_upper = 'A' <= byte && byte <= 'Z';
    const char lower = static_cast<char>(is_upper ? byte + 32 : byte);
    const std::string canonical = goes ? std::string("x") : std::string{lower, 'x'};
    EXPECT_EQ(normalize_command_name(std::string{character, 'x'}), canonical) << "byte " << byte;
  }
}

QuillInput mixed_document() {
  return QuillInput{{{"opt"},
                     {"Model", HeaderCommandKind::Assignment, "m1"},
                     {"#OPT", HeaderCommandKind::ParameterList, std::nullopt, {{"tight"}}},
                     {"\tOpt ", HeaderCommandKind{9}},
                     {"freq"},
                     {"##opt"},
                     {""},
                     {" # "}}};
}

struct FindRow {
  const char* name;
  std::string_view query;
  std::uint64_t occurrence;
  std::optional<std::size_t> position;
};

void PrintTo(const FindRow& row, std::ostream* out) { *out << row.name; }

const FindRow find_rows[] = {
    {"First", "opt", 0, 0},
    {"SecondPastAnotherCommand", "opt", 1, 2},
    {"Third", "opt", 2, 3},
    {"OnePastTheLast", "opt", 3, std::nullopt},
    {"TwoPastTheLast", "opt", 4, std::nullopt},
    {"OccurrencesAreNot32BitNumbers", "opt", two_to_the_32nd, std::nullopt},
    {"GreatestOccurrence", "opt", greatest_occurrence, std::nullopt},
    {"InAnotherCase", "Opt", 0, 0},
    {"WithHashAndBlanks", " # oPT\n", 1, 2},
    {"StoredInAnotherCase", "model", 0, 1},
    {"SecondOfOne", "model", 1, std::nullopt},
    {"LastOfItsName", "#freq", 0, 4},
    {"StoredWithTwoHashes", "##OPT", 0, 5},
    {"StoredWithTwoHashesOnce", "##opt", 1, std::nullopt},
    {"AskedWithThreeHashes", "###opt", 0, std::nullopt},
    {"EmptyName", "", 0, 6},
    {"HashAsAnEmptyName", "#", 1, 7},
    {"BlanksAsAnEmptyName", "  ", 2, std::nullopt},
    {"OneCharacterShort", "op", 0, std::nullopt},
    {"OneCharacterTooMany", "opts", 0, std::nullopt},
    {"WithoutTheFirstCharacter", "pt", 0, std::nullopt},
    {"BlankInside", "o pt", 0, std::nullopt},
    {"HashAtTheEnd", "opt#", 0, std::nullopt},
    {"NulAtTheEnd", "opt\0"sv, 0, std::nullopt},
    {"AnotherName", "sp", 0, std::nullopt},
    {"AValueIsNotAName", "m1", 0, std::nullopt},
    {"AParameterIsNotAName", "tight", 0, std::nullopt},
};

class FindCommand : public testing::TestWithParam<FindRow> {};

TEST_P(FindCommand, ReturnsTheMatchOfThatNumberForReadingAndForChanging) {
  const auto& [name, query, occurrence, position] = GetParam();
  QuillInput input = mixed_document();
  HeaderCommand* const expected = position ? &input.commands[*position] : nullptr;
  EXPECT_EQ(input.find_command(query, occurrence), expected);
  EXPECT_EQ(std::as_const(input).find_command(query, occurrence), expected);
  EXPECT_EQ(input, mixed_document());
}

TEST_P(FindCommand, AgreesWithHasCommand) {
  const QuillInput input = mixed_document();
  const std::string_view query = GetParam().query;
  EXPECT_EQ(input.has_command(query), input.find_command(query, 0) != nullptr);
}

INSTANTIATE_TEST_SUITE_P(Table, FindCommand, testing::ValuesIn(find_rows),
                         [](const auto& row) { return std::string(row.param.name); });

static_assert(std::is_same_v<decltype(std::declval<QuillInput&>().find_command("")),  //
                             HeaderCommand*>);
static_assert(std::is_same_v<decltype(std::declval<const QuillInput&>().find_command("")),
                             const HeaderCommand*>);

TEST(FindCommand, ReturnsTheFirstMatchUnlessAskedForAnother) {
  QuillInput input = mixed_document();
  EXPECT_EQ(input.find_command("opt"), &input.commands[0]);
  EXPECT_EQ(std::as_const(input).find_command("opt"), &input.commands[0]);
}

TEST(FindCommand, FindsNothingInAnEmptyDocument) {
  QuillInput input;
  EXPECT_EQ(input.find_command("opt", 0), nullptr);
  EXPECT_EQ(input.find_command("", 0), nullptr);
  EXPECT_EQ(std::as_const(input).find_command("opt", 0), nullptr);
}

TEST(FindCommand, TakesANameThatPointsIntoTheDocument) {
  QuillInput input = mixed_document();
  EXPECT_EQ(input.find_command(input.commands[3].name, 1), &input.commands[2]);
  EXPECT_TRUE(input.has_command(input.commands[3].name));
}

TEST(FindCommand, TakesANameThatIsPartOfALongerText) {
  const QuillInput input = mixed_document();
  const std::string_view text = "optimise";
  EXPECT_EQ(input.find_command(text.substr(0, 3)), &input.commands[0]);
  EXPECT_EQ(input.find_command(text), nullptr);
}

TEST(FindCommand, SeesAChangedNameAtOnce) {
  QuillInput input = mixed_document();
  input.find_command("opt")->name = "irc";
  EXPECT_EQ(input.find_command("opt"), &input.commands[2]);
  EXPECT_EQ(input.find_command("irc"), &input.commands[0]);
}

TEST(HasCommand, IsTrueForEveryStoredSpellingAndForNoOtherName) {
  const QuillInput input = mixed_document();
  for (const std::string_view name : {"opt", "#opt", "MODEL", "freq", "##opt", "", "#", " "})
    EXPECT_TRUE(input.has_command(name)) << name;
  for (const std::string_view name : {"sp", "op", "optx", "mode", "m1", "tight", "###opt"})
    EXPECT_FALSE(input.has_command(name)) << name;
  EXPECT_FALSE(QuillInput().has_command(""));
}

struct TaskRow {
  const char* name;
  std::vector<HeaderCommand> commands;
  bool has_task;
};

void PrintTo(const TaskRow& row, std::ostream* out) { *out << row.name; }

const TaskRow task_rows[] = {
    {"NoCommand", {}, false},
    {"SinglePoint", {{"sp"}}, true},
    {"Optimisation", {{"opt"}}, true},
    {"TransitionState", {{"ts"}}, true},
    {"Frequencies", {{"freq"}}, true},
    {"ReactionPath", {{"irc"}}, true},
    {"Scan", {{"scan"}}, true},
    {"AnyCase", {{"Scan"}}, true},
    {"StoredWithHashAndBlanks", {{" # IRC "}}, true},
    {"AsAnAssignment", {{"sp", HeaderCommandKind::Assignment, "yes"}}, true},
    {"AsAParameterList", {{"ts", HeaderCommandKind::ParameterList}}, true},
    {"OfAnUnknownKind", {{"freq", HeaderCommandKind{3}}}, true},
    {"AfterOtherCommands", {{"model"}, {"device"}, {"opt"}}, true},
    {"ModelAndDevice", {{"model"}, {"device"}}, false},
    {"TwoHashes", {{"##opt"}}, false},
    {"EmptyName", {{""}}, false},
    {"AValueIsNotATask", {{"task", HeaderCommandKind::Assignment, "opt"}}, false},
    {"AParameterIsNotATask", {{"x", HeaderCommandKind::ParameterList, {}, {{"opt"}}}}, false},
    {"OneCharacterShort", {{"s"}, {"op"}, {"t"}, {"fre"}, {"ir"}, {"sca"}}, false},
    {"OneCharacterTooMany", {{"spx"}, {"opts"}, {"tss"}, {"freqs"}, {"irc2"}, {"scans"}}, false},
    {"NoName", {{""}, {" # "}}, false},
    {"OtherNames", {{"md"}, {"optfreq"}, {"sp opt"}, {"neb"}, {"pt"}, {"can"}}, false},
};

class HasTaskCommand : public testing::TestWithParam<TaskRow> {};

TEST_P(HasTaskCommand, IsAnsweredByTheNamesAlone) {
  EXPECT_EQ(QuillInput{GetParam().commands}.has_task_command(), GetParam().has_task);
}

INSTANTIATE_TEST_SUITE_P(Table, HasTaskCommand, testing::ValuesIn(task_rows),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(CommandNames, AreTheStoredOnesInOrderWithRepetitions) {
  const QuillInput input{{{"Opt"}, {"opt"}, {" #Model "}, {""}, {"opt"}, {"a\nb"}}};
  EXPECT_EQ(input.command_names(),
            (std::vector<std::string>{"Opt", "opt", " #Model ", "", "opt", "a\nb"}));
}

TEST(CommandNames, OfAnEmptyDocumentAreNone) {
  EXPECT_EQ(QuillInput().command_names(), std::vector<std::string>());
}

TEST(CommandNames, TakeNoMoreRoomThanTheyNeed) {
  const QuillInput input{std::vector<HeaderCommand>(5, HeaderCommand{"opt"})};
  EXPECT_EQ(input.command_names().capacity(), 5U);
}

}  // namespace

}  // namespace kelp::input::quill
