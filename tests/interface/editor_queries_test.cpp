#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "support/comparison.hpp"
#include "support/edit_case.hpp"
#include "support/printing.hpp"

namespace kelp::input::quill {

namespace {

static_assert(!std::is_polymorphic_v<InputEditor>);
static_assert(!std::is_default_constructible_v<InputEditor>);
static_assert(!std::is_convertible_v<QuillInput, InputEditor>);
static_assert(std::is_copy_constructible_v<InputEditor> && std::is_copy_assignable_v<InputEditor>);
static_assert(std::is_nothrow_move_constructible_v<InputEditor>);
static_assert(std::is_nothrow_move_assignable_v<InputEditor>);
static_assert(sizeof(InputEditor) == sizeof(QuillInput));
static_assert(std::is_same_v<decltype(std::declval<InputEditor&>().document()), const QuillInput&>);
static_assert(
    std::is_same_v<decltype(std::declval<const InputEditor&>().document()), const QuillInput&>);
static_assert(std::is_same_v<decltype(std::declval<InputEditor>().document()), QuillInput>);
static_assert(noexcept(std::declval<const InputEditor&>().document()));

using Kind = HeaderCommandKind;
using Text = std::optional<std::string>;

QuillInput a_document() {
  return with_commands({list("opt", {{"maxiter", "50"}, {"tight"}}), assignment("model", "m1")});
}

TEST(InputEditor, TakesADocumentAsItIs) {
  QuillInput input = with_commands({flag(" #OPT "), flag("")});
  const QuillInput copy = input;
  const HeaderCommand* const first = input.commands.data();
  const InputEditor editor(std::move(input));
  EXPECT_EQ(editor.document(), copy);
  EXPECT_EQ(editor.document().commands.data(), first);
}

TEST(InputEditor, DoesNotChangeTheDocumentThatWasCopiedIntoIt) {
  const QuillInput input = a_document();
  InputEditor editor(input);
  editor.set_flag("opt");
  EXPECT_EQ(input, a_document());
}

TEST(InputEditor, GivesTheDocumentAwayWhenItIsAboutToGo) {
  InputEditor editor(a_document());
  const HeaderCommand* const first = editor.document().commands.data();
  const QuillInput taken = std::move(editor).document();
  EXPECT_EQ(taken, a_document());
  EXPECT_EQ(taken.commands.data(), first);
}

TEST(InputEditor, IsCopiedWithItsDocument) {
  InputEditor editor(a_document());
  InputEditor copy = editor;
  copy.set_flag("freq");
  EXPECT_EQ(editor.document(), a_document());
  editor = copy;
  EXPECT_EQ(editor.document(), copy.document());
}

struct AssignmentQuery {
  std::string_view name;
  std::vector<HeaderCommand> commands;
  std::string_view asked;
  Text answer;
};

void PrintTo(const AssignmentQuery& row, std::ostream* out) { *out << row.name; }

class GetAssignment : public testing::TestWithParam<AssignmentQuery> {};

TEST_P(GetAssignment, Answers) {
  const InputEditor editor(with_commands(GetParam().commands));
  EXPECT_EQ(editor.get_assignment(GetParam().asked), GetParam().answer);
  EXPECT_EQ(editor.document(), with_commands(GetParam().commands));
}

const AssignmentQuery assignment_queries[] = {
    {"ItsValue", {flag("opt"), assignment("basis", "b1")}, "basis", "b1"},
    {"AnEmptyValueAsEmpty", {assignment("basis", "")}, "basis", ""},
    {"TheValueExactlyAsStored", {assignment("basis", " \"B 1\" ")}, "basis", " \"B 1\" "},
    {"ForTheCanonicalName", {assignment("# Basis", "b1")}, " #BASIS ", "b1"},
    {"NothingForAMissingCommand", {assignment("model", "m1")}, "basis", std::nullopt},
    {"NothingForADocumentWithoutCommands", {}, "basis", std::nullopt},
    {"NothingForAFlag", {flag("basis")}, "basis", std::nullopt},
    {"NothingForAFlagWithAStrayValue", {{"basis", Kind::Flag, "stray"}}, "basis", std::nullopt},
    {"NothingForAParameterListWithAStrayValue",
     {{"basis", Kind::ParameterList, "stray", {{"tight"}}}},
     "basis",
     std::nullopt},
    {"NothingForAnUnknownKind", {{"basis", Kind{7}, "stray"}}, "basis", std::nullopt},
    {"NothingForAnAssignmentWithoutAValue", {{"basis", Kind::Assignment}}, "basis", std::nullopt},
    {"NothingWhenOnlyALaterCommandIsAnAssignment",
     {flag("opt"), assignment("opt", "x")},
     "opt",
     std::nullopt},
    {"TheFirstOfTwoAssignments", {assignment("opt", "x"), assignment("opt", "y")}, "opt", "x"},
};

INSTANTIATE_TEST_SUITE_P(Table, GetAssignment, testing::ValuesIn(assignment_queries),
                         row_name<AssignmentQuery>);

TEST(InputEditor, KnowsItsModelAndItsDevice) {
  const InputEditor editor(
      with_commands({flag("opt"), assignment("#Device", "gpu:0"), assignment("MODEL", "m1")}));
  EXPECT_EQ(editor.model(), Text("m1"));
  EXPECT_EQ(editor.device(), Text("gpu:0"));
}

TEST(InputEditor, HasNoModelAndNoDeviceWhenTheyAreNotAssigned) {
  const InputEditor editor(with_commands({flag("model"), list("device", {{"gpu"}})}));
  EXPECT_EQ(editor.model(), std::nullopt);
  EXPECT_EQ(editor.device(), std::nullopt);
}

TEST(InputEditor, DistinguishesAnEmptyModelFromNone) {
  InputEditor editor{QuillInput()};
  EXPECT_EQ(editor.model(), std::nullopt);
  editor.set_model("");
  EXPECT_EQ(editor.model(), Text(""));
}

struct ParameterQuery {
  std::string_view name;
  std::vector<HeaderCommand> commands;
  std::string_view command_name;
  std::string_view parameter_name;
  std::uint64_t occurrence;
  Text answer;
};

void PrintTo(const ParameterQuery& row, std::ostream* out) { *out << row.name; }

class GetParameter : public testing::TestWithParam<ParameterQuery> {};

TEST_P(GetParameter, Answers) {
  const ParameterQuery& row = GetParam();
  const InputEditor editor(with_commands(row.commands));
  EXPECT_EQ(editor.get_parameter(row.command_name, row.parameter_name, row.occurrence), row.answer);
  EXPECT_EQ(editor.document(), with_commands(row.commands));
}

const HeaderCommand opt50 = list("opt", {{"tight"}, {"maxiter", "50"}});

const ParameterQuery parameter_queries[] = {
    {"ItsValue", {flag("freq"), opt50}, "opt", "maxiter", 0, "50"},
    {"AnEmptyValueAsEmpty", {list("opt", {{"basis", ""}})}, "opt", "basis", 0, ""},
    {"TheValueExactlyAsStored", {list("opt", {{"a", " \"x\" "}})}, "opt", "a", 0, " \"x\" "},
    {"ForNamesMatchedAsEverywhere",
     {list("#Opt", {{" MaxIter", "50"}})},
     " OPT",
     "MAXITER ",
     0,
     "50"},
    {"NothingForABareParameter", {opt50}, "opt", "tight", 0, std::nullopt},
    {"NothingForABareParameterBeforeAKeyedOne",
     {list("opt", {{"a"}, {"a", "1"}})},
     "opt",
     "a",
     0,
     std::nullopt},
    {"TheFirstOfTheName", {list("opt", {{"a", "1"}, {"A", "2"}})}, "opt", "a", 0, "1"},
    {"NothingForAMissingParameter", {opt50}, "opt", "basis", 0, std::nullopt},
    {"NothingForAParameterNameWithAHash", {opt50}, "opt", "#maxiter", 0, std::nullopt},
    {"NothingForAMissingCommand", {opt50}, "freq", "maxiter", 0, std::nullopt},
    {"NothingForAMissingOccurrence", {opt50}, "opt", "maxiter", 1, std::nullopt},
    {"NothingForTheLastOccurrenceThereCanBe",
     {opt50},
     "opt",
     "maxiter",
     std::numeric_limits<std::uint64_t>::max(),
     std::nullopt},
    {"ThatOfALaterOccurrence",
     {opt50, flag("freq"), list("OPT", {{"maxiter", "60"}}), opt50},
     "opt",
     "maxiter",
     1,
     "60"},
    {"StrayParametersOfAFlag", {{"opt", Kind::Flag, {}, {{"a", "1"}}}}, "opt", "a", 0, "1"},
    {"StrayParametersOfAnAssignment",
     {{"opt", Kind::Assignment, "x", {{"a", "1"}}}},
     "opt",
     "a",
     0,
     "1"},
};

INSTANTIATE_TEST_SUITE_P(Table, GetParameter, testing::ValuesIn(parameter_queries),
                         row_name<ParameterQuery>);

TEST(GetParameter, AsksTheFirstCommandByDefault) {
  const InputEditor editor(with_commands({opt50, list("opt", {{"maxiter", "60"}})}));
  EXPECT_EQ(editor.get_parameter("opt", "maxiter"), Text("50"));
}

TEST(GetParameter, AnswersOnceABareParameterHasGotAValue) {
  InputEditor editor(with_commands({opt50}));
  editor.set_parameter("opt", "tight", "yes", 0);
  EXPECT_EQ(editor.get_parameter("opt", "tight", 0), Text("yes"));
}

TEST(InputEditor, KnowsWhichCommandsThereAre) {
  const InputEditor editor(with_commands({flag("Opt"), flag(" #opt"), assignment("model", "m1")}));
  EXPECT_TRUE(editor.has_command("#OPT"));
  EXPECT_TRUE(editor.has_command("model"));
  EXPECT_FALSE(editor.has_command("freq"));
  EXPECT_EQ(editor.command_names(), (std::vector<std::string>{"Opt", " #opt", "model"}));
}

TEST(InputEditor, KnowsWhetherThereIsATask) {
  EXPECT_TRUE(InputEditor(with_commands({assignment("a", "b"), flag("Scan")})).has_task_command());
  EXPECT_FALSE(InputEditor(with_commands({flag("model"), flag("opts")})).has_task_command());
}

}  // namespace

}  // namespace kelp::input::quill
