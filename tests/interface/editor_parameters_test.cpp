#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <optional>

#include "support/comparison.hpp"
#include "support/edit_case.hpp"
#include "support/printing.hpp"

namespace kelp::input::quill {

namespace {

using Kind = HeaderCommandKind;

constexpr std::uint64_t last_occurrence = std::numeric_limits<std::uint64_t>::max();

class SetParameter : public testing::TestWithParam<EditCase> {};

TEST_P(SetParameter, GivesTheDocument) { expect_edit(GetParam()); }

const EditCase rows_of_found_commands[] = {
    {"AnExistingParameterGetsTheValue",
     with_commands({list("opt", {{"tight"}, {"maxiter", "50"}, {"trust", "0.1"}})}),
     [](InputEditor& editor) { editor.set_parameter("opt", "maxiter", "100", 0); },
     with_commands({list("opt", {{"tight"}, {"maxiter", "100"}, {"trust", "0.1"}})})},
    {"ABareParameterGetsTheValue", with_commands({list("opt", {{"tight"}})}),
     [](InputEditor& editor) { editor.set_parameter("opt", "tight", "yes", 0); },
     with_commands({list("opt", {{"tight", "yes"}})})},
    {"AnEmptyValueIsPresent", with_commands({list("opt", {{"tight"}})}),
     [](InputEditor& editor) { editor.set_parameter("opt", "tight", "", 0); },
     with_commands({list("opt", {{"tight", ""}})})},
    {"AMissingParameterIsAppended", with_commands({list("opt", {{"tight"}})}),
     [](InputEditor& editor) { editor.set_parameter("opt", "maxiter", "50", 0); },
     with_commands({list("opt", {{"tight"}, {"maxiter", "50"}})})},
    {"AFoundParameterKeepsItsSpelling", with_commands({list("opt", {{" MaxIter ", "50"}})}),
     [](InputEditor& editor) { editor.set_parameter("opt", "\tmaxITER", "60", 0); },
     with_commands({list("opt", {{" MaxIter ", "60"}})})},
    {"ParameterNameAndValueAreStoredExactlyAsPassed", with_commands({flag("opt")}),
     [](InputEditor& editor) { editor.set_parameter("opt", " MaxIter ", " \"50\" ", 0); },
     with_commands({list("opt", {{" MaxIter ", " \"50\" "}})})},
    {"AHashIsPartOfAParameterName", with_commands({list("opt", {{"basis", "b1"}})}),
     [](InputEditor& editor) { editor.set_parameter("opt", "#basis", "b2", 0); },
     with_commands({list("opt", {{"basis", "b1"}, {"#basis", "b2"}})})},
    {"OnlyTheFirstParameterOfTheNameIsChanged",
     with_commands({list("opt", {{"a", "1"}, {"b", "2"}, {"B", "3"}})}),
     [](InputEditor& editor) { editor.set_parameter("opt", "b", "4", 0); },
     with_commands({list("opt", {{"a", "1"}, {"b", "4"}, {"B", "3"}})})},
    {"OccurrenceZeroIsTheDefault", with_commands({flag("opt"), flag("opt")}),
     [](InputEditor& editor) { editor.set_parameter("opt", "tight", "yes"); },
     with_commands({list("opt", {{"tight", "yes"}}), flag("opt")})},
    {"TheCommandIsMatchedInItsCanonicalForm", with_commands({flag("#Opt")}),
     [](InputEditor& editor) { editor.set_parameter(" OPT", "tight", "yes", 0); },
     with_commands({list("#Opt", {{"tight", "yes"}})})},
    {"ALaterOccurrenceIsTheOneChanged",
     with_commands({list("opt", {{"maxiter", "50"}}), flag("freq"),
                    list("OPT", {{"maxiter", "51"}}), list("opt", {{"maxiter", "52"}})}),
     [](InputEditor& editor) { editor.set_parameter("opt", "maxiter", "60", 1); },
     with_commands({list("opt", {{"maxiter", "50"}}), flag("freq"),
                    list("OPT", {{"maxiter", "60"}}), list("opt", {{"maxiter", "52"}})})},
    {"AnAssignmentLosesItsValue", with_commands({assignment("opt", "x")}),
     [](InputEditor& editor) { editor.set_parameter("opt", "maxiter", "50", 0); },
     with_commands({list("opt", {{"maxiter", "50"}})})},
    {"AFlagBecomesAParameterList", with_commands({flag("opt")}),
     [](InputEditor& editor) { editor.set_parameter("opt", "maxiter", "50", 0); },
     with_commands({list("opt", {{"maxiter", "50"}})})},
    {"StrayParametersOfAFlagAreLookedAt",
     with_commands({HeaderCommand{"opt", Kind::Flag, "stray", {{"maxiter"}}}}),
     [](InputEditor& editor) { editor.set_parameter("opt", "maxiter", "50", 0); },
     with_commands({list("opt", {{"maxiter", "50"}})})},
    {"AStrayValueOfAParameterListIsCleared",
     with_commands({HeaderCommand{"opt", Kind::ParameterList, "stray", {{"tight"}}}}),
     [](InputEditor& editor) { editor.set_parameter("opt", "maxiter", "50", 0); },
     with_commands({list("opt", {{"tight"}, {"maxiter", "50"}})})},
};

INSTANTIATE_TEST_SUITE_P(FoundCommands, SetParameter, testing::ValuesIn(rows_of_found_commands),
                         row_name<EditCase>);

const EditCase rows_of_missing_commands[] = {
    {"AMissingCommandIsAppended", with_commands({assignment("model", "m1")}),
     [](InputEditor& editor) { editor.set_parameter("opt", "maxiter", "50", 0); },
     with_commands({assignment("model", "m1"), list("opt", {{"maxiter", "50"}})})},
    {"AllNamesAreStoredExactlyAsPassed", with_commands({}),
     [](InputEditor& editor) { editor.set_parameter(" #Opt", " MaxIter", " 50 ", 0); },
     with_commands({list(" #Opt", {{" MaxIter", " 50 "}})})},
    {"ALaterOccurrenceOfNoCommandAppendsOneCommandOnly", with_commands({}),
     [](InputEditor& editor) { editor.set_parameter("opt", "maxiter", "50", 5); },
     with_commands({list("opt", {{"maxiter", "50"}})})},
    {"AMissingOccurrenceGivesTheFirstCommandASecondParameterOfTheName",
     with_commands({list("opt", {{"maxiter", "50"}})}),
     [](InputEditor& editor) { editor.set_parameter("opt", "maxiter", "60", 1); },
     with_commands({list("opt", {{"maxiter", "50"}, {"maxiter", "60"}})})},
    {"AMissingOccurrenceChangesTheFirstCommandAndNotTheLast",
     with_commands({flag("freq"), list("Opt", {{"tight"}}), list("opt", {{"loose"}})}),
     [](InputEditor& editor) { editor.set_parameter("opt", "maxiter", "60", 2); },
     with_commands(
         {flag("freq"), list("Opt", {{"tight"}, {"maxiter", "60"}}), list("opt", {{"loose"}})})},
    {"TheLastOccurrenceThereCanBeIsMissing", with_commands({list("opt", {{"maxiter", "50"}})}),
     [](InputEditor& editor) { editor.set_parameter("opt", "maxiter", "60", last_occurrence); },
     with_commands({list("opt", {{"maxiter", "50"}, {"maxiter", "60"}})})},
    {"AMissingOccurrenceTurnsTheFirstAssignmentIntoAParameterList",
     with_commands({assignment("opt", "x")}),
     [](InputEditor& editor) { editor.set_parameter("opt", "maxiter", "60", 1); },
     with_commands({list("opt", {{"maxiter", "60"}})})},
    {"AMissingOccurrenceKeepsABareParameterBare", with_commands({list("opt", {{"tight"}})}),
     [](InputEditor& editor) { editor.set_parameter("opt", "tight", "yes", 1); },
     with_commands({list("opt", {{"tight"}, {"tight", "yes"}})})},
};

INSTANTIATE_TEST_SUITE_P(MissingCommands, SetParameter, testing::ValuesIn(rows_of_missing_commands),
                         row_name<EditCase>);

class RemoveParameter : public testing::TestWithParam<RemovalCase> {};

TEST_P(RemoveParameter, GivesTheDocument) { expect_removal(GetParam()); }

const RemovalCase removal_rows[] = {
    {"TheOnlyOneLeavesAFlag", with_commands({list("opt", {{"tight"}})}),
     [](InputEditor& editor) { return editor.remove_parameter("opt", "tight", 0); }, true,
     with_commands({flag("opt")})},
    {"ASecondCallFindsNothing", with_commands({list("opt", {{"tight"}})}),
     [](InputEditor& editor) {
       editor.remove_parameter("opt", "tight", 0);
       return editor.remove_parameter("opt", "tight", 0);
     },
     false, with_commands({flag("opt")})},
    {"TheLaterOnesMoveUpInTheirOrder",
     with_commands({list("opt", {{"a", "1"}, {"b"}, {"c", "3"}, {"d", ""}})}),
     [](InputEditor& editor) { return editor.remove_parameter("opt", "b", 0); }, true,
     with_commands({list("opt", {{"a", "1"}, {"c", "3"}, {"d", ""}})})},
    {"OnlyTheFirstOfTheNameGoes",
     with_commands({list("opt", {{"a"}, {"b", "1"}, {"B", "2"}, {"b", "3"}})}),
     [](InputEditor& editor) { return editor.remove_parameter("opt", "b", 0); }, true,
     with_commands({list("opt", {{"a"}, {"B", "2"}, {"b", "3"}})})},
    {"BothNamesAreMatchedAsEverywhere", with_commands({list("#Opt", {{" Tight "}, {"a"}})}),
     [](InputEditor& editor) { return editor.remove_parameter(" OPT ", "tight\t", 0); }, true,
     with_commands({list("#Opt", {{"a"}})})},
    {"AHashIsPartOfAParameterName", with_commands({list("opt", {{"tight"}})}),
     [](InputEditor& editor) { return editor.remove_parameter("opt", "#tight", 0); }, false,
     with_commands({list("opt", {{"tight"}})})},
    {"AMissingCommandGivesFalse", with_commands({list("opt", {{"tight"}})}),
     [](InputEditor& editor) { return editor.remove_parameter("freq", "tight", 0); }, false,
     with_commands({list("opt", {{"tight"}})})},
    {"AMissingParameterGivesFalse", with_commands({list("opt", {{"tight"}})}),
     [](InputEditor& editor) { return editor.remove_parameter("opt", "maxiter", 0); }, false,
     with_commands({list("opt", {{"tight"}})})},
    {"AMissingParameterOfAnEmptyListGivesFalse", with_commands({list("opt", {})}),
     [](InputEditor& editor) { return editor.remove_parameter("opt", "tight", 0); }, false,
     with_commands({list("opt", {})})},
    {"AMissingOccurrenceGivesFalse", with_commands({list("opt", {{"tight"}})}),
     [](InputEditor& editor) { return editor.remove_parameter("opt", "tight", 1); }, false,
     with_commands({list("opt", {{"tight"}})})},
    {"OccurrenceZeroIsTheDefault",
     with_commands({list("opt", {{"tight"}}), list("opt", {{"tight"}})}),
     [](InputEditor& editor) { return editor.remove_parameter("opt", "tight"); }, true,
     with_commands({flag("opt"), list("opt", {{"tight"}})})},
    {"ALaterOccurrenceIsTheOneChanged",
     with_commands({list("opt", {{"tight"}}), list("OPT", {{"tight"}}), list("opt", {{"tight"}})}),
     [](InputEditor& editor) { return editor.remove_parameter("opt", "tight", 1); }, true,
     with_commands({list("opt", {{"tight"}}), flag("OPT"), list("opt", {{"tight"}})})},
    {"AStrayValueOfAParameterListStays",
     with_commands({HeaderCommand{"opt", Kind::ParameterList, "stray", {{"tight"}}}}),
     [](InputEditor& editor) { return editor.remove_parameter("opt", "tight", 0); }, true,
     with_commands({HeaderCommand{"opt", Kind::Flag, "stray"}})},
    {"AnAssignmentStaysAnAssignment",
     with_commands({HeaderCommand{"opt", Kind::Assignment, "x", {{"tight"}}}}),
     [](InputEditor& editor) { return editor.remove_parameter("opt", "tight", 0); }, true,
     with_commands({assignment("opt", "x")})},
    {"AnUnknownKindStaysAsItIs",
     with_commands({HeaderCommand{"opt", Kind{7}, std::nullopt, {{"tight"}}}}),
     [](InputEditor& editor) { return editor.remove_parameter("opt", "tight", 0); }, true,
     with_commands({HeaderCommand{"opt", Kind{7}}})},
};

INSTANTIATE_TEST_SUITE_P(Table, RemoveParameter, testing::ValuesIn(removal_rows),
                         row_name<RemovalCase>);

}  // namespace

}  // namespace kelp::input::quill
