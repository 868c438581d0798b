#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <optional>
#include <utility>

#include "support/comparison.hpp"
#include "support/edit_case.hpp"
#include "support/printing.hpp"

namespace kelp::input::quill {

namespace {

using Kind = HeaderCommandKind;

constexpr int least = std::numeric_limits<int>::min();
constexpr int greatest = std::numeric_limits<int>::max();

QuillInput three_opts() {
  return with_commands({flag("opt"), flag("freq"), list("#OPT", {{"tight"}}), flag(" Opt")});
}

class RemoveCommand : public testing::TestWithParam<RemovalCase> {};

TEST_P(RemoveCommand, GivesTheDocument) { expect_removal(GetParam()); }

const RemovalCase removal_rows[] = {
    {"EveryMatchGoesByDefault", three_opts(),
     [](InputEditor& editor) { return editor.remove_command("opt"); }, true,
     with_commands({flag("freq")})},
    {"EveryMatchGoesWithoutAnOccurrence", three_opts(),
     [](InputEditor& editor) { return editor.remove_command(" #oPT ", std::nullopt); }, true,
     with_commands({flag("freq")})},
    {"OccurrenceZeroIsTheFirstMatchAlone", three_opts(),
     [](InputEditor& editor) { return editor.remove_command("opt", 0); }, true,
     with_commands({flag("freq"), list("#OPT", {{"tight"}}), flag(" Opt")})},
    {"OccurrenceOneIsTheSecondMatch", three_opts(),
     [](InputEditor& editor) { return editor.remove_command("opt", 1); }, true,
     with_commands({flag("opt"), flag("freq"), flag(" Opt")})},
    {"TheLastMatchIsFoundToo", three_opts(),
     [](InputEditor& editor) { return editor.remove_command("opt", 2); }, true,
     with_commands({flag("opt"), flag("freq"), list("#OPT", {{"tight"}})})},
    {"AMissingOccurrenceGivesFalse", three_opts(),
     [](InputEditor& editor) { return editor.remove_command("opt", 3); }, false, three_opts()},
    {"AMissingCommandGivesFalse", three_opts(),
     [](InputEditor& editor) { return editor.remove_command("model"); }, false, three_opts()},
    {"ADocumentWithoutCommandsGivesFalse", with_commands({}),
     [](InputEditor& editor) { return editor.remove_command("opt"); }, false, with_commands({})},
};

INSTANTIATE_TEST_SUITE_P(Table, RemoveCommand, testing::ValuesIn(removal_rows),
                         row_name<RemovalCase>);

/// Its members contradict each other: what is added is not checked.
HeaderCommand inconsistent() { return {" #OPT", Kind::Flag, "stray", {{"tight"}, {"tight"}}}; }

class AddCommand : public testing::TestWithParam<EditCase> {};

TEST_P(AddCommand, GivesTheDocument) { expect_edit(GetParam()); }

const EditCase add_command_rows[] = {
    {"AMovedCommandIsAppendedAsItIs", with_commands({flag("opt")}),
     [](InputEditor& editor) { editor.add_command(inconsistent()); },
     with_commands({flag("opt"), inconsistent()})},
    {"ACopiedCommandIsAppendedAsItIs", with_commands({flag("opt")}),
     [](InputEditor& editor) {
       const HeaderCommand command = inconsistent();
       editor.add_command(command);
       EXPECT_EQ(command, inconsistent());
     },
     with_commands({flag("opt"), inconsistent()})},
    {"ANamelessMovedCommandIsAppendedToo", with_commands({flag("")}),
     [](InputEditor& editor) { editor.add_command(HeaderCommand()); },
     with_commands({flag(""), flag("")})},
    {"ANamelessCopiedCommandIsAppendedToo", with_commands({flag("")}),
     [](InputEditor& editor) {
       const HeaderCommand nameless;
       editor.add_command(nameless);
     },
     with_commands({flag(""), flag("")})},
};

INSTANTIATE_TEST_SUITE_P(Table, AddCommand, testing::ValuesIn(add_command_rows),
                         row_name<EditCase>);

TEST(AddCommand, MovesWhatItMay) {
  HeaderCommand command = list("opt", {{"tight"}});
  const CommandParameter* const first = command.parameters.data();
  InputEditor editor{QuillInput()};
  editor.add_command(std::move(command));
  EXPECT_EQ(editor.document().commands.front().parameters.data(), first);
}

TEST(AddCommand, TwiceMakesTwoOccurrences) {
  InputEditor editor(with_commands({flag("freq")}));
  const HeaderCommand command = list("opt", {{"tight"}});
  editor.add_command(command);
  editor.add_command(command);
  const QuillInput& document = editor.document();
  EXPECT_EQ(document, with_commands({flag("freq"), command, command}));
  EXPECT_EQ(document.find_command("opt", 0), &document.commands[1]);
  EXPECT_EQ(document.find_command("opt", 1), &document.commands[2]);
}

/// A geometry of which everything but the charge and multiplicity is the same in each row.
QuillInput charged(std::int32_t charge, std::int32_t multiplicity, bool has_line) {
  return with_geometry(
      {GeometryKind::XyzFile, charge, multiplicity, has_line, {{"H", 1.0, 2.0, 3.0}}, {"a.xyz"}});
}

class ChargeAndMultiplicity : public testing::TestWithParam<EditCase> {};

TEST_P(ChargeAndMultiplicity, GiveTheDocument) { expect_edit(GetParam()); }

const EditCase charge_rows[] = {
    {"TheyAreSetWithTheirLine", charged(0, 1, false),
     [](InputEditor& editor) { editor.set_charge_and_multiplicity(-1, 2); }, charged(-1, 2, true)},
    {"TheirDefaultsMakeALineToo", charged(-1, 2, false),
     [](InputEditor& editor) { editor.set_charge_and_multiplicity(0, 1); }, charged(0, 1, true)},
    {"ALineThatIsThereGetsTheNewNumbers", charged(-1, 2, true),
     [](InputEditor& editor) { editor.set_charge_and_multiplicity(2, 3); }, charged(2, 3, true)},
    {"ZeroAndNegativeNumbersAreAccepted", charged(0, 1, false),
     [](InputEditor& editor) { editor.set_charge_and_multiplicity(-7, 0); }, charged(-7, 0, true)},
    {"TheSmallestNumbersAreAccepted", charged(0, 1, false),
     [](InputEditor& editor) { editor.set_charge_and_multiplicity(least, least); },
     charged(least, least, true)},
    {"TheLargestNumbersAreAccepted", charged(0, 1, false),
     [](InputEditor& editor) { editor.set_charge_and_multiplicity(greatest, greatest); },
     charged(greatest, greatest, true)},
    {"ClearingThemRestoresTheDefaults", charged(-1, 2, true),
     [](InputEditor& editor) { editor.clear_charge_and_multiplicity(); }, charged(0, 1, false)},
    {"ClearingForgetsNumbersWithoutALineToo", charged(-1, 2, false),
     [](InputEditor& editor) { editor.clear_charge_and_multiplicity(); }, charged(0, 1, false)},
    {"TheyCanBeSetAgainAfterwards", charged(-1, 2, true),
     [](InputEditor& editor) {
       editor.clear_charge_and_multiplicity();
       editor.set_charge_and_multiplicity(0, 1);
     },
     charged(0, 1, true)},
    {"AGeometryWithoutCoordinatesStaysWithout", with_geometry({}),
     [](InputEditor& editor) { editor.set_charge_and_multiplicity(1, 2); },
     with_geometry({GeometryKind::None, 1, 2, true})},
};

INSTANTIATE_TEST_SUITE_P(Table, ChargeAndMultiplicity, testing::ValuesIn(charge_rows),
                         row_name<EditCase>);

TEST(ChargeAndMultiplicity, HaveNoLineInTheTextOnceTheyAreCleared) {
  InputEditor editor{QuillInput()};
  editor.set_charge_and_multiplicity(-1, 2);
  EXPECT_EQ(editor.to_string(), "-1 2\n");
  editor.clear_charge_and_multiplicity();
  EXPECT_EQ(editor.to_string(), "");
  editor.set_charge_and_multiplicity(0, 1);
  EXPECT_EQ(editor.to_string(), "0 1\n");
}

}  // namespace

}  // namespace kelp::input::quill
