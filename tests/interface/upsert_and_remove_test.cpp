#include <gtest/gtest.h>

#include <limits>
#include <ostream>
#include <utility>

#include "kelp/input/quill/document.hpp"
#include "support/comparison.hpp"
#include "support/printing.hpp"

namespace kelp::input::quill {

namespace {

constexpr std::uint64_t greatest_occurrence = std::numeric_limits<std::uint64_t>::max();
constexpr std::uint64_t two_to_the_32nd = std::uint64_t{1} << 32U;

/// Three commands named "opt" among others, each recognisable by its value, and the other sections.
const std::vector<HeaderCommand> all_commands = {
    {"model", HeaderCommandKind::Assignment, "m1"},
    {"opt", HeaderCommandKind::ParameterList, "first", {{"tight"}}},
    {"freq", HeaderCommandKind::Flag, "a"},
    {"#OPT", HeaderCommandKind::Flag, "second"},
    {" Opt\t", HeaderCommandKind{7}, "third", {{"maxiter", "50"}}},
    {"##opt", HeaderCommandKind::Flag, "b"},
    {"", HeaderCommandKind::Flag, "c"},
};

QuillInput document_with(std::vector<HeaderCommand> commands) {
  return QuillInput{std::move(commands),
                    {GeometryKind::Atoms, -1, 2, true, {{"O", 1.0, 2.0, 3.0}}, {"opt"}},
                    {{PostCommandKind::Raw, {}, {}, {}, {}, "opt"}}};
}

std::vector<HeaderCommand> commands_at(const std::vector<std::size_t>& positions) {
  std::vector<HeaderCommand> commands;
  for (const std::size_t position : positions) commands.push_back(all_commands[position]);
  return commands;
}

struct UpsertRow {
  const char* name;
  std::string query;
  std::size_t position;
  bool appends;
};

void PrintTo(const UpsertRow& row, std::ostream* out) { *out << row.name; }

const UpsertRow upsert_rows[] = {
    {"FirstOfSeveral", "opt", 1, false},
    {"InAnotherCase", "OPT", 1, false},
    {"WithHashAndBlanks", " # Freq ", 2, false},
    {"StoredWithTwoHashes", "##OPT", 5, false},
    {"EmptyName", "", 6, false},
    {"HashAsAnEmptyName", "#", 6, false},
    {"NewName", "sp", 7, true},
    {"NewNameKeepsItsSpelling", "SP", 7, true},
    {"NewNameKeepsHashAndBlanks", " # Sp ", 7, true},
    {"NewNameKeepsItsBytes", std::string("a\0\xFF\n", 4), 7, true},
    {"OneCharacterShort", "op", 7, true},
    {"OneCharacterTooMany", "opts", 7, true},
};

class UpsertCommand : public testing::TestWithParam<UpsertRow> {};

TEST_P(UpsertCommand, ReturnsTheFirstMatchOrAFlagAtTheEnd) {
  QuillInput input = document_with(all_commands);
  std::vector<HeaderCommand> expected = all_commands;
  if (GetParam().appends) expected.push_back(HeaderCommand{GetParam().query});

  const HeaderCommand& command = input.upsert_command(GetParam().query);
  EXPECT_EQ(input, document_with(expected));
  EXPECT_EQ(&command, &input.commands[GetParam().position]);
}

TEST_P(UpsertCommand, FindsTheSecondTimeWhatTheFirstAppended) {
  QuillInput input = document_with(all_commands);
  input.upsert_command(GetParam().query);
  const QuillInput after_first = input;
  const HeaderCommand& command = input.upsert_command(GetParam().query);
  EXPECT_EQ(input, after_first);
  EXPECT_EQ(&command, &input.commands[GetParam().position]);
}

INSTANTIATE_TEST_SUITE_P(Table, UpsertCommand, testing::ValuesIn(upsert_rows),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(UpsertCommand, StartsAnEmptyDocument) {
  QuillInput input;
  HeaderCommand& command = input.upsert_command("OPT");
  EXPECT_EQ(input, (QuillInput{{{"OPT", HeaderCommandKind::Flag, std::nullopt, {}}}}));
  EXPECT_EQ(&command, &input.commands.front());
}

TEST(UpsertCommand, ReturnsACommandThatCanBeChanged) {
  QuillInput input;
  input.upsert_command("model").kind = HeaderCommandKind::Assignment;
  input.upsert_command("model").value = "m1";
  EXPECT_EQ(input, (QuillInput{{{"model", HeaderCommandKind::Assignment, "m1"}}}));
}

TEST(UpsertCommand, MovesTheNameIntoTheNewCommand) {
  std::string name(200, 'n');
  const char* const characters = name.data();
  QuillInput input;
  EXPECT_EQ(input.upsert_command(std::move(name)).name.data(), characters);
}

TEST(UpsertCommand, TakesANameOfTheDocumentItself) {
  QuillInput input = document_with(all_commands);
  EXPECT_EQ(&input.upsert_command(input.commands[4].name), &input.commands[1]);
  EXPECT_EQ(&input.upsert_command(input.post_commands[0].raw_text), &input.commands[1]);
  EXPECT_EQ(input, document_with(all_commands));
}

struct RemoveRow {
  const char* name;
  std::string_view query;
  std::optional<std::uint64_t> occurrence;
  bool removed;
  std::vector<std::size_t> left;
};

void PrintTo(const RemoveRow& row, std::ostream* out) { *out << row.name; }

const std::vector<std::size_t> all_left = {0, 1, 2, 3, 4, 5, 6};

const RemoveRow remove_rows[] = {
    {"EveryOneOfTheName", "opt", std::nullopt, true, {0, 2, 5, 6}},
    {"EveryOneInAnotherCase", " #oPT ", std::nullopt, true, {0, 2, 5, 6}},
    {"TheVeryFirstCommand", "model", std::nullopt, true, {1, 2, 3, 4, 5, 6}},
    {"TheOnlyOneOfItsName", "freq", std::nullopt, true, {0, 1, 3, 4, 5, 6}},
    {"StoredWithTwoHashes", "##opt", std::nullopt, true, {0, 1, 2, 3, 4, 6}},
    {"EmptyNameAtTheEnd", "#", std::nullopt, true, {0, 1, 2, 3, 4, 5}},
    {"NoneOfTheName", "sp", std::nullopt, false, all_left},
    {"OneCharacterShort", "op", std::nullopt, false, all_left},
    {"OneCharacterTooMany", "opts", std::nullopt, false, all_left},
    {"AValueIsNotAName", "m1", std::nullopt, false, all_left},
    {"First", "opt", 0, true, {0, 2, 3, 4, 5, 6}},
    {"Middle", "opt", 1, true, {0, 1, 2, 4, 5, 6}},
    {"Last", "OPT", 2, true, {0, 1, 2, 3, 5, 6}},
    {"OnePastTheLast", "opt", 3, false, all_left},
    {"TwoPastTheLast", "opt", 4, false, all_left},
    {"OccurrencesAreNot32BitNumbers", "opt", two_to_the_32nd, false, all_left},
    {"GreatestOccurrence", "opt", greatest_occurrence, false, all_left},
    {"FirstOfOne", "model", 0, true, {1, 2, 3, 4, 5, 6}},
    {"SecondOfOne", "model", 1, false, all_left},
    {"FirstOfNone", "sp", 0, false, all_left},
    {"FirstWithAnEmptyName", "", 0, true, {0, 1, 2, 3, 4, 5}},
};

class RemoveCommand : public testing::TestWithParam<RemoveRow> {};

TEST_P(RemoveCommand, LeavesTheOthersInTheirOrder) {
  QuillInput input = document_with(all_commands);
  EXPECT_EQ(input.remove_command(GetParam().query, GetParam().occurrence), GetParam().removed);
  EXPECT_EQ(input, document_with(commands_at(GetParam().left)));
}

TEST_P(RemoveCommand, RemovesNothingFromAnEmptyDocument) {
  QuillInput input;
  EXPECT_FALSE(input.remove_command(GetParam().query, GetParam().occurrence));
  EXPECT_EQ(input, QuillInput());
}

INSTANTIATE_TEST_SUITE_P(Table, RemoveCommand, testing::ValuesIn(remove_rows),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(RemoveCommand, RemovesEveryMatchUnlessAskedForOne) {
  QuillInput input = document_with(all_commands);
  EXPECT_TRUE(input.remove_command("opt"));
  EXPECT_EQ(input, document_with(commands_at({0, 2, 5, 6})));
  EXPECT_FALSE(input.remove_command("opt"));
}

TEST(RemoveCommand, CanRemoveAll) {
  QuillInput input = document_with({{"opt"}, {"Opt"}, {"#opt"}});
  EXPECT_TRUE(input.remove_command("opt"));
  EXPECT_EQ(input, document_with({}));
}

TEST(RemoveCommand, RemovesNeighboursOfOneName) {
  QuillInput input = document_with({{"a"}, {"opt"}, {"opt"}, {"b"}, {"opt"}, {"opt"}});
  EXPECT_TRUE(input.remove_command("opt"));
  EXPECT_EQ(input, document_with({{"a"}, {"b"}}));
}

class RemoveCommandByAStoredName : public testing::TestWithParam<std::size_t> {};

TEST_P(RemoveCommandByAStoredName, RemovesAllOfThatName) {
  QuillInput input = document_with(all_commands);
  EXPECT_TRUE(input.remove_command(input.commands[GetParam()].name));
  EXPECT_EQ(input, document_with(commands_at({0, 2, 5, 6})));
}

TEST_P(RemoveCommandByAStoredName, RemovesTheOneAskedFor) {
  QuillInput input = document_with(all_commands);
  EXPECT_TRUE(input.remove_command(input.commands[GetParam()].name, 1));
  EXPECT_EQ(input, document_with(commands_at({0, 1, 2, 4, 5, 6})));
}

// The positions of the three: before, at and after the one that is removed.
INSTANTIATE_TEST_SUITE_P(Positions, RemoveCommandByAStoredName, testing::Values(1U, 3U, 4U));

}  // namespace

}  // namespace kelp::input::quill
